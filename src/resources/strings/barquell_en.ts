<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquell may not hold touches back yet</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>Open privacy settings…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>Allow…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquell may hold touches back</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>Open preferences</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>Preferences…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>Authorization Required…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>Bypass the Frontmost App</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>Do You Like Barquell?</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>Show in the Store</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>Rate in the Store</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>Continue in Background</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>Quit Barquell</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>Touches pass while one of these apps is in front:</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>Apps without blocking</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>Done</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>Permission:</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>Authorization…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>Apps:</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>Remove from the list without asking</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>Settings:</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>Reset all settings…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>Behind the scenes:</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>Reveal</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>Settings file</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Log</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>Report of what is needed</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>Start:</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>Start Barquell at login</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>Start without showing this window</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>Presence:</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>Show the status item</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>Show in the taskbar only while a window is open</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>Quitting:</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>The quit shortcut only closes the windows</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>Blocking then goes on in the background. The menu still quits.</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>Windows:</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>Animate changes of size</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>Do you like Barquell?</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>Turn blocking on or off:</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>Turn blocking on or off</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Enabled</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>Bypass the app in front:</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>Bypass the app in front</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>Show or hide this window:</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>Show or hide this window</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>Blocking:</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>Block touches on the Touch Bar</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>Apps without blocking…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>Pause keys:</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>Let touches pass while one of these is held</translation>
    </message>
    <message>
        <source>Fn</source>
        <translation>Fn</translation>
    </message>
    <message>
        <source>Command (Super)</source>
        <translation>Command (Super)</translation>
    </message>
    <message>
        <source>Side of Command (Super)</source>
        <translation>Side of Command (Super)</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>Either side</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>Left side</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>Right side</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Option (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Side of Option (Alt)</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Side of Control</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Side of Shift</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Keys on the Touch Bar ignore held pause keys</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>Display:</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>Show changes of blocking on the screen</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>When a pause key is pressed or released</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>When another app comes to the front</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>Place of the display on the screen</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>Top left</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>Top right</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>Centre</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>Bottom left</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>Bottom right</translation>
    </message>
    <message>
        <source>Barquell Preferences</source>
        <translation>Barquell Preferences</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>Tabs</translation>
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
        <translation>Shortcuts</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>Block the Touch Bar</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>Bypass %@</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar On</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar Off</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>Authorization Complete</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>Authorization Required</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>Do you like %@?</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>A short review helps others to find it, and us to keep it going.</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>Write a review</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>Ask me later</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>No, thanks</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>Brightness</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Previous</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Next</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>Lock</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>Simulated Touch Bar</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>Barquell may filter touches</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>Hold Fn</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>Held back: %@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>Passed: %@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquell asks for it</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>Are you sure you want to remove selected apps from bypass list?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>Are you sure?</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>Another copy of %@ is already running</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>This copy is going to quit</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>Show another copy</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>Quit another copy instead</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>Keep all copies running</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>Privacy Settings…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Touch Bar Permission</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>An administrator allowed it on %@.</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@ may hold touches back</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@ may not hold touches back</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>Withdraw</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>The permission was not given: somebody declined, or there is nobody who can be asked.</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>The permission was not given: the service that holds the Touch Bar does not answer.</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>The service that holds the Touch Bar could not do this; its log says why.</translation>
    </message>
</context>
</TS>
