<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hans">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquell 还不能拦截触摸</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>要拦截 Touch Bar 上的触摸，Barquell 须先看到它们。系统会请求一次您的许可。Barquell 只查看触摸和修饰键，不查看其他任何内容。</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>打开隐私设置…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>允许…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquell 可以拦截触摸</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>从现在起，Touch Bar 上的触摸将被拦截。按住 Fn 可暂时放行。其他选项请见偏好设置。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>打开偏好设置</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>偏好设置…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>需要授权…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>排除最前面的应用</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>喜欢 Barquell 吗？</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>在商店中显示</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>在商店中评分</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>在后台继续运行</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>退出 Barquell</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>以下任一应用在最前面时放行触摸：</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>排除的应用</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完成</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>授权：</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>授权…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>应用：</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>从列表移除时不询问</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>设置：</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>还原所有设置…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>幕后：</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>显示</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>设置文件</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>日志</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>运行条件报告</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>启动：</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>登录时启动 Barquell</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>启动时不显示此窗口</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>图标：</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>显示状态图标</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>仅在窗口打开时显示在任务栏中</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>退出：</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>退出快捷键仅关闭窗口</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>屏蔽会在后台继续。仍可从菜单退出。</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>窗口：</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>动画显示大小变化</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>喜欢 Barquell 吗？</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>开启或关闭屏蔽：</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>开启或关闭屏蔽</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>清除</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>启用</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>排除最前面的应用：</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>排除最前面的应用</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>显示或隐藏此窗口：</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>显示或隐藏此窗口</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>点按一栏，然后按下按键；按 Esc 则保持不变。开启或关闭屏蔽将在下次启动时生效。</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>屏蔽：</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>屏蔽 Touch Bar 上的触摸</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>排除的应用…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>暂停键：</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>按住以下任一键时放行触摸</translation>
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
        <translation>Command (Super) 所在侧</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>任意一侧</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>左侧</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>右侧</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Option (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Option (Alt) 所在侧</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Control 所在侧</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Shift 所在侧</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Touch Bar 上的按键忽略按住的暂停键</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>屏幕提示：</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>在屏幕上显示屏蔽状态的变化</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>按下或松开暂停键时</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>其他应用切换到最前面时</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>提示在屏幕上的位置</translation>
    </message>
    <message>
        <source>Top left</source>
        <translation>左上</translation>
    </message>
    <message>
        <source>Top right</source>
        <translation>右上</translation>
    </message>
    <message>
        <source>Centre</source>
        <translation>居中</translation>
    </message>
    <message>
        <source>Bottom left</source>
        <translation>左下</translation>
    </message>
    <message>
        <source>Bottom right</source>
        <translation>右下</translation>
    </message>
    <message>
        <source>Barquell Preferences</source>
        <translation>Barquell 偏好设置</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>标签页</translation>
    </message>
    <message>
        <source>General</source>
        <translation>通用</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>快捷键</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>屏蔽 Touch Bar</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>排除 %@</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar 已开启</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar 已关闭</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>授权完成</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>需要授权</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>喜欢 %@ 吗？</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>写一条简短的评价，能帮助更多人发现它，也支持我们继续开发。</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>撰写评价</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>以后再说</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>不，谢谢</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>亮度</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>上一首</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>下一首</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>锁定</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>模拟 Touch Bar</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>允许 Barquell 过滤触摸</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>按住 Fn</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>已拦截：%@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>已放行：%@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquell 正在请求</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>好</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>确定要从排除列表中移除所选应用吗？</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>确定吗？</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>报告</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>另一个 %@ 已在运行</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>此副本即将退出</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>显示另一个副本</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>改为退出另一个副本</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>保留所有副本运行</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>隐私设置…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Touch Bar 权限</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>获得权限后，Barquell 只在此用户位于前台时查看 Touch Bar 上的触摸和修饰键，不查看其他任何内容。没有权限时，所有触摸都会通过。</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>管理员已于 %@ 允许。</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@ 可以拦截触摸</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@ 不能拦截触摸</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>撤回</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>无法撤回权限：管理 Touch Bar 的服务没有响应。</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>未获得权限：有人拒绝，或者没有可以询问的人。</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>未获得权限：管理 Touch Bar 的服务没有响应。</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>管理 Touch Bar 的服务未能完成此操作；原因见其日志。</translation>
    </message>
</context>
</TS>
