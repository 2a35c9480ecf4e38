<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquell aún no puede retener los toques</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>Para retener los toques en la Touch Bar, Barquell tiene que verlos antes. El sistema pide permiso una sola vez. Barquell solo observa los toques y las teclas modificadoras, nada más.</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>Abrir los ajustes de privacidad…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Permitir…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquell puede retener los toques</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>A partir de ahora se retienen los toques en la Touch Bar. Mantén pulsada la tecla Fn para dejarlos pasar un momento. Lo demás está en las preferencias.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>Abrir preferencias</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferencias…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>Autorización necesaria…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>Excluir la app en primer plano</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>¿Te gusta Barquell?</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>Mostrar en la tienda</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Valorar en la tienda</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>Continuar en segundo plano</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>Salir de Barquell</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>Los toques pasan mientras una de estas apps esté en primer plano:</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>Apps excluidas</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Añadir</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Listo</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>Autorización:</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>Autorización…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>Apps:</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>Quitar de la lista sin preguntar</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Ajustes:</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Restablecer todos los ajustes…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>Entre bastidores:</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Archivo de ajustes</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Registro</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>Informe de requisitos</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Inicio:</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>Abrir Barquell al iniciar sesión</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>Iniciar sin mostrar esta ventana</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Iconos:</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>Mostrar el icono de estado</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>Mostrar en la barra de tareas solo con una ventana abierta</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>Salir:</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>El atajo para salir solo cierra las ventanas</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>El bloqueo continúa entonces en segundo plano. Desde el menú se puede seguir saliendo.</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>Ventanas:</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>Animar los cambios de tamaño</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>¿Te gusta Barquell?</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>Activar o desactivar el bloqueo:</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>Activar o desactivar el bloqueo</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Borrar</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activado</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>Excluir la app en primer plano:</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>Excluir la app en primer plano</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>Mostrar u ocultar esta ventana:</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>Mostrar u ocultar esta ventana</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>Haz clic en un campo y pulsa las teclas; Escape lo deja como estaba. Activar o desactivar el bloqueo surte efecto en el próximo inicio.</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>Bloqueo:</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>Bloquear los toques en la Touch Bar</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>Apps excluidas…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>Teclas de pausa:</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>Dejar pasar los toques mientras se mantenga pulsada una</translation>
    </message>
    <message>
        <source>Fn</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Command (Super)</source>
        <translation>Comando (Super)</translation>
    </message>
    <message>
        <source>Side of Command (Super)</source>
        <translation>Lado de Comando (Super)</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>Cualquier lado</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>Lado izquierdo</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>Lado derecho</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Opción (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Lado de Opción (Alt)</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control (Ctrl)</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Lado de Control (Ctrl)</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Mayúsculas</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Lado de Mayúsculas</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Las teclas de la Touch Bar ignoran las de pausa</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Aviso:</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>Mostrar en pantalla los cambios de bloqueo</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>Al pulsar o soltar una tecla de pausa</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>Cuando otra app pasa a primer plano</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>Posición del aviso en la pantalla</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Arriba a la izquierda</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Arriba a la derecha</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centro</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Abajo a la izquierda</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Abajo a la derecha</translation>
    </message>
    <message>
        <source>Barquell Preferences</source>
        <translation>Preferencias de Barquell</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Atajos</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>Bloquear la Touch Bar</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>Excluir %@</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar activa</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar inactiva</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>Autorización concedida</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorización necesaria</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>¿Te gusta %@?</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>Una breve reseña ayuda a otras personas a encontrarlo, y a nosotros a seguir adelante.</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>Escribir una reseña</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>Preguntar más tarde</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>No, gracias</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brillo</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Ant.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Iniciar</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Sig.</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Silencio</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volumen</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Bloq.</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>Touch Bar simulada</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>Barquell puede filtrar los toques</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>Mantener Fn pulsada</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>Retenidos: %@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>Pasados: %@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquell lo pide</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Aceptar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>¿Seguro que quieres quitar las apps seleccionadas de la lista de exclusión?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>¿Quieres continuar?</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>Ya se está ejecutando otra copia de %@</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>Esta copia se va a cerrar</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>Mostrar la otra copia</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>Cerrar la otra copia</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>Mantener todas las copias abiertas</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>Ajustes de privacidad…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Permiso para la Touch Bar</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>Con el permiso, Barquell ve los toques en la Touch Bar y las teclas modificadoras mientras la sesión de este usuario está activa, y nada más. Sin él, todos los toques pasan.</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>Lo permitió un administrador el %@.</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@ puede retener los toques</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@ no puede retener los toques</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>Retirar</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>No se pudo retirar el permiso: el servicio que controla la Touch Bar no responde.</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>No se concedió el permiso: alguien lo rechazó o no hay a quién preguntar.</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>No se concedió el permiso: el servicio que controla la Touch Bar no responde.</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>El servicio que controla la Touch Bar no pudo hacerlo; su registro indica el motivo.</translation>
    </message>
</context>
</TS>
