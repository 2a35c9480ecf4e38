<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquell ne peut pas encore retenir les appuis</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>Pour retenir les appuis sur la Touch Bar, Barquell doit d’abord les voir. Le système vous demande une fois votre autorisation. Barquell observe les appuis et les touches de modification, rien d’autre.</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>Ouvrir les réglages de confidentialité…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Autoriser…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquell peut retenir les appuis</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>Les appuis sur la Touch Bar sont désormais retenus. Maintenez Fn pour les laisser passer un instant. Tout le reste se trouve dans les préférences.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>Ouvrir les préférences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Préférences…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>Autorisation requise…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>Exclure l’app au premier plan</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>Aimez-vous Barquell ?</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>Afficher dans la boutique</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Évaluer dans la boutique</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>Continuer en arrière-plan</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>Quitter Barquell</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>Les appuis passent tant que l’une de ces apps est au premier plan :</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>Apps exclues</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>Autorisation :</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>Autorisation…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>Apps :</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>Supprimer de la liste sans demander</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Réglages :</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Réinitialiser tous les réglages…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>En coulisses :</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Fichier de réglages</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>Rapport sur les prérequis</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Démarrage :</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>Ouvrir Barquell à l’ouverture de session</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>Démarrer sans afficher cette fenêtre</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Icônes :</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>Afficher l’icône d’état</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>Afficher dans la barre des tâches seulement si une fenêtre est ouverte</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>Fermeture :</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>Le raccourci pour quitter ferme seulement les fenêtres</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>Le blocage continue alors en arrière-plan. Le menu permet toujours de quitter.</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>Fenêtres :</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>Animer les changements de taille</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>Aimez-vous Barquell ?</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>Activer ou désactiver le blocage :</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>Activer ou désactiver le blocage</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>Exclure l’app au premier plan :</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>Exclure l’app au premier plan</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>Afficher ou masquer cette fenêtre :</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>Afficher ou masquer cette fenêtre</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>Cliquez sur un champ et appuyez sur les touches ; Échap le laisse tel quel. L’activation ou la désactivation du blocage prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>Blocage :</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>Bloquer les appuis sur la Touch Bar</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>Apps exclues…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>Touches de pause :</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>Laisser passer les appuis tant que l’une d’elles est maintenue</translation>
    </message>
    <message>
        <source>Fn</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Command (Super)</source>
        <translation>Commande (Super)</translation>
    </message>
    <message>
        <source>Side of Command (Super)</source>
        <translation>Côté de Commande (Super)</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>Gauche ou droite</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>Côté gauche</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>Côté droit</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Option (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Côté d’Option (Alt)</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Contrôle (Ctrl)</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Côté de Contrôle (Ctrl)</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Maj</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Côté de Maj</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Les touches de la Touch Bar ignorent celles de pause</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Affichage :</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>Afficher les changements de blocage à l’écran</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>Quand une touche de pause est enfoncée ou relâchée</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>Quand une autre app passe au premier plan</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>Emplacement de l’affichage à l’écran</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>Barquell Preferences</source>
        <translation>Préférences de Barquell</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>Raccourcis</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>Bloquer la Touch Bar</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>Exclure %@</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar activée</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar désactivée</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>Autorisation accordée</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Autorisation requise</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>Aimez-vous %@ ?</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>Un court avis aide d’autres personnes à le trouver, et nous à le faire vivre.</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>Rédiger un avis</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>Me le demander plus tard</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>Non merci</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Luminosité</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Préc.</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Suiv.</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Muet</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Verrou.</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>Touch Bar simulée</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>Barquell peut filtrer les appuis</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>Maintenir Fn</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>Retenus : %@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>Passés : %@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquell le demande</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>Voulez-vous vraiment supprimer les apps sélectionnées de la liste d’exclusion ?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>Une autre copie de %@ est déjà ouverte</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>Cette copie va se fermer</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>Afficher l’autre copie</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>Quitter plutôt l’autre copie</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>Garder toutes les copies ouvertes</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>Réglages de confidentialité…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Autorisation pour la Touch Bar</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>Avec l’autorisation, Barquell voit les appuis sur la Touch Bar et les touches de modification tant que la session de cet utilisateur est active, et rien d’autre. Sans elle, tous les appuis passent.</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>Accordée par un administrateur le %@.</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@ peut retenir les appuis</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@ ne peut pas retenir les appuis</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>Retirer</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>L’autorisation n’a pas pu être retirée : le service qui contrôle la Touch Bar ne répond pas.</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>L’autorisation n’a pas été accordée : quelqu’un a refusé, ou il n’y a personne à qui demander.</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>L’autorisation n’a pas été accordée : le service qui contrôle la Touch Bar ne répond pas.</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>Le service qui contrôle la Touch Bar n’a pas pu le faire ; son journal indique pourquoi.</translation>
    </message>
</context>
</TS>
