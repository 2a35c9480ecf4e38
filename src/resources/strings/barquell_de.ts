<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquell darf Berührungen noch nicht zurückhalten</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>Um Berührungen der Touch Bar zurückzuhalten, muss Barquell sie zuerst sehen. Das System bittet Sie einmal um Erlaubnis. Barquell beachtet Berührungen und Sondertasten, sonst nichts.</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>Datenschutzeinstellungen öffnen…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Erlauben…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquell darf Berührungen zurückhalten</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>Ab jetzt werden Berührungen der Touch Bar zurückgehalten. Halten Sie Fn, um sie kurz durchzulassen. Alles Weitere finden Sie in den Einstellungen.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>Einstellungen öffnen</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Einstellungen…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>Berechtigung erforderlich…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>Vorderste App ausnehmen</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>Gefällt Ihnen Barquell?</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>Im Store anzeigen</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Im Store bewerten</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>Im Hintergrund weiterlaufen</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>Barquell beenden</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>Berührungen werden durchgelassen, solange eine dieser Apps vorne ist:</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>Ausgenommene Apps</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>Berechtigung:</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>Berechtigung…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>Apps:</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>Ohne Rückfrage aus der Liste entfernen</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Einstellungen:</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Alle Einstellungen zurücksetzen…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>Hinter den Kulissen:</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Einstellungsdatei</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>Bericht über die Voraussetzungen</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Starten:</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>Barquell bei der Anmeldung starten</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>Ohne dieses Fenster starten</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Symbole:</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>Statussymbol anzeigen</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>Nur bei geöffnetem Fenster in der Taskleiste anzeigen</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>Beenden:</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>Das Tastenkürzel zum Beenden schließt nur Fenster</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>Das Blockieren läuft dann im Hintergrund weiter. Über das Menü lässt sich Barquell weiterhin beenden.</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>Fenster:</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>Größenänderungen animieren</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>Gefällt Ihnen Barquell?</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>Blockieren ein- oder ausschalten:</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>Blockieren ein- oder ausschalten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Löschen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>Vorderste App ausnehmen:</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>Vorderste App ausnehmen</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>Dieses Fenster ein- oder ausblenden:</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>Dieses Fenster ein- oder ausblenden</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>Klicken Sie in ein Feld und drücken Sie die Tasten; mit Escape bleibt alles, wie es war. Das Ein- oder Ausschalten des Blockierens gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>Blockieren:</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>Berührungen der Touch Bar blockieren</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>Ausgenommene Apps…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>Pausentasten:</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>Berührungen durchlassen, solange eine davon gehalten wird</translation>
    </message>
    <message>
        <source>Fn</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Command (Super)</source>
        <translation>Befehl (Super)</translation>
    </message>
    <message>
        <source>Side of Command (Super)</source>
        <translation>Seite von Befehl (Super)</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>Links oder rechts</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>Linke Seite</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>Rechte Seite</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Option (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Seite von Option (Alt)</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control (Strg)</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Seite von Control (Strg)</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Umschalt</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Seite von Umschalt</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Tasten der Touch Bar ignorieren gehaltene Pausentasten</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Einblendung:</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>Änderungen des Blockierens auf dem Bildschirm einblenden</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>Beim Drücken oder Loslassen einer Pausentaste</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>Wenn eine andere App nach vorne kommt</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>Ort der Einblendung auf dem Bildschirm</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Oben links</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Oben rechts</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Mitte</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Unten links</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Unten rechts</translation>
    </message>
    <message>
        <source>Barquell Preferences</source>
        <translation>Barquell-Einstellungen</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Bereiche</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>Touch Bar blockieren</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>%@ ausnehmen</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar ein</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar aus</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>Berechtigung erteilt</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Berechtigung erforderlich</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>Gefällt Ihnen %@?</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>Eine kurze Bewertung hilft anderen, es zu finden, und uns, es weiterzuentwickeln.</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>Bewertung schreiben</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>Später fragen</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>Nein, danke</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Helligkeit</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Start</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Stumm</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Lautstärke</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Sperren</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>Simulierte Touch Bar</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>Barquell darf Berührungen filtern</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>Fn halten</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>Zurückgehalten: %@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>Durchgelassen: %@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquell bittet darum</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>Möchten Sie die ausgewählten Apps wirklich aus der Liste der Ausnahmen entfernen?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Sind Sie sicher?</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>Eine weitere Kopie von %@ läuft bereits</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>Diese Kopie wird beendet</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>Andere Kopie anzeigen</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>Stattdessen andere Kopie beenden</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>Alle Kopien weiterlaufen lassen</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>Datenschutzeinstellungen…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Berechtigung für die Touch Bar</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>Mit der Berechtigung sieht Barquell die Berührungen der Touch Bar und die Sondertasten, solange dieser Benutzer vorn ist, und sonst nichts. Ohne sie geht jede Berührung durch.</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>Von einem Administrator erlaubt am %@.</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@ darf Berührungen zurückhalten</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@ darf Berührungen nicht zurückhalten</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>Zurücknehmen</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>Die Berechtigung konnte nicht zurückgenommen werden: Der Dienst, der die Touch Bar hält, antwortet nicht.</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>Die Berechtigung wurde nicht erteilt: Jemand hat abgelehnt, oder niemand kann gefragt werden.</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>Die Berechtigung wurde nicht erteilt: Der Dienst, der die Touch Bar hält, antwortet nicht.</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>Der Dienst, der die Touch Bar hält, konnte dies nicht ausführen; sein Protokoll nennt den Grund.</translation>
    </message>
</context>
</TS>
