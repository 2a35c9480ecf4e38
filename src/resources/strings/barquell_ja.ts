<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Bundle</name>
    <message>
        <source>Barquell may not hold touches back yet</source>
        <translation>Barquellはまだタッチを止められません</translation>
    </message>
    <message>
        <source>To hold touches on the Touch Bar back, Barquell must see them first. The system asks for your permission once. Barquell looks at touches and modifier keys, and at nothing else.</source>
        <translation>Touch Barへのタッチを止めるには、Barquellがタッチを検出できる必要があります。システムが一度だけ許可を求めます。Barquellが見るのはタッチと修飾キーだけです。</translation>
    </message>
    <message>
        <source>Open privacy settings…</source>
        <translation>プライバシー設定を開く…</translation>
    </message>
    <message>
        <source>Allow…</source>
        <translation>許可する…</translation>
    </message>
    <message>
        <source>Barquell may hold touches back</source>
        <translation>Barquellはタッチを止められます</translation>
    </message>
    <message>
        <source>Touches on the Touch Bar are held back from now on. Hold Fn to let them through for a moment. Everything else is in the preferences.</source>
        <translation>これからTouch Barへのタッチを止めます。一時的に通すにはFnを押したままにします。そのほかのことは環境設定で変更できます。</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message>
        <source>Open preferences</source>
        <translation>環境設定を開く</translation>
    </message>
    <message>
        <source>Preferences…</source>
        <translation>環境設定…</translation>
    </message>
    <message>
        <source>Authorization Required…</source>
        <translation>許可が必要です…</translation>
    </message>
    <message>
        <source>Bypass the Frontmost App</source>
        <translation>最前面のアプリを除外</translation>
    </message>
    <message>
        <source>Do You Like Barquell?</source>
        <translation>Barquellはお気に召しましたか?</translation>
    </message>
    <message>
        <source>Show in the Store</source>
        <translation>ストアで表示</translation>
    </message>
    <message>
        <source>Rate in the Store</source>
        <translation>ストアで評価</translation>
    </message>
    <message>
        <source>Continue in Background</source>
        <translation>バックグラウンドで続ける</translation>
    </message>
    <message>
        <source>Quit Barquell</source>
        <translation>Barquellを終了</translation>
    </message>
    <message>
        <source>Touches pass while one of these apps is in front:</source>
        <translation>次のアプリが最前面にある間はタッチを通します:</translation>
    </message>
    <message>
        <source>Apps without blocking</source>
        <translation>除外するアプリ</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
    <message>
        <source>Permission:</source>
        <translation>許可:</translation>
    </message>
    <message>
        <source>Authorization…</source>
        <translation>許可…</translation>
    </message>
    <message>
        <source>Apps:</source>
        <translation>アプリ:</translation>
    </message>
    <message>
        <source>Remove from the list without asking</source>
        <translation>確認せずにリストから削除</translation>
    </message>
    <message>
        <source>Settings:</source>
        <translation>設定:</translation>
    </message>
    <message>
        <source>Reset all settings…</source>
        <translation>すべての設定をリセット…</translation>
    </message>
    <message>
        <source>Behind the scenes:</source>
        <translation>内部情報:</translation>
    </message>
    <message>
        <source>Reveal</source>
        <translation>表示</translation>
    </message>
    <message>
        <source>Settings file</source>
        <translation>設定ファイル</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>ログ</translation>
    </message>
    <message>
        <source>Report of what is needed</source>
        <translation>動作に必要な条件のレポート</translation>
    </message>
    <message>
        <source>Start:</source>
        <translation>起動:</translation>
    </message>
    <message>
        <source>Start Barquell at login</source>
        <translation>ログイン時にBarquellを起動</translation>
    </message>
    <message>
        <source>Start without showing this window</source>
        <translation>このウインドウを表示せずに起動</translation>
    </message>
    <message>
        <source>Presence:</source>
        <translation>アイコン:</translation>
    </message>
    <message>
        <source>Show the status item</source>
        <translation>ステータスアイコンを表示</translation>
    </message>
    <message>
        <source>Show in the taskbar only while a window is open</source>
        <translation>ウインドウを開いている間だけタスクバーに表示</translation>
    </message>
    <message>
        <source>Quitting:</source>
        <translation>終了:</translation>
    </message>
    <message>
        <source>The quit shortcut only closes the windows</source>
        <translation>終了のショートカットではウインドウだけを閉じる</translation>
    </message>
    <message>
        <source>Blocking then goes on in the background. The menu still quits.</source>
        <translation>ブロックはバックグラウンドで続きます。メニューからは終了できます。</translation>
    </message>
    <message>
        <source>Windows:</source>
        <translation>ウインドウ:</translation>
    </message>
    <message>
        <source>Animate changes of size</source>
        <translation>サイズの変更をアニメーション表示</translation>
    </message>
    <message>
        <source>Do you like Barquell?</source>
        <translation>Barquellはお気に召しましたか?</translation>
    </message>
    <message>
        <source>Turn blocking on or off:</source>
        <translation>ブロックのオン/オフ:</translation>
    </message>
    <message>
        <source>Turn blocking on or off</source>
        <translation>ブロックのオン/オフ</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>消去</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>有効</translation>
    </message>
    <message>
        <source>Bypass the app in front:</source>
        <translation>最前面のアプリを除外:</translation>
    </message>
    <message>
        <source>Bypass the app in front</source>
        <translation>最前面のアプリを除外</translation>
    </message>
    <message>
        <source>Show or hide this window:</source>
        <translation>このウインドウを表示/非表示:</translation>
    </message>
    <message>
        <source>Show or hide this window</source>
        <translation>このウインドウを表示/非表示</translation>
    </message>
    <message>
        <source>Click a field and press the keys; Escape leaves it as it was. Turning blocking on or off counts from the next start.</source>
        <translation>欄をクリックしてキーを押してください。Escapeで元のままになります。ブロックのオン/オフは次回の起動から有効になります。</translation>
    </message>
    <message>
        <source>Blocking:</source>
        <translation>ブロック:</translation>
    </message>
    <message>
        <source>Block touches on the Touch Bar</source>
        <translation>Touch Barへのタッチをブロック</translation>
    </message>
    <message>
        <source>Apps without blocking…</source>
        <translation>除外するアプリ…</translation>
    </message>
    <message>
        <source>Pause keys:</source>
        <translation>一時停止キー:</translation>
    </message>
    <message>
        <source>Let touches pass while one of these is held</source>
        <translation>次のキーを押している間はタッチを通す</translation>
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
        <translation>Command (Super)の左右</translation>
    </message>
    <message>
        <source>Either side</source>
        <translation>左右どちらでも</translation>
    </message>
    <message>
        <source>Left side</source>
        <translation>左側</translation>
    </message>
    <message>
        <source>Right side</source>
        <translation>右側</translation>
    </message>
    <message>
        <source>Option (Alt)</source>
        <translation>Option (Alt)</translation>
    </message>
    <message>
        <source>Side of Option (Alt)</source>
        <translation>Option (Alt)の左右</translation>
    </message>
    <message>
        <source>Control</source>
        <translation>Control</translation>
    </message>
    <message>
        <source>Side of Control</source>
        <translation>Controlの左右</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Side of Shift</source>
        <translation>Shiftの左右</translation>
    </message>
    <message>
        <source>Keys on the Touch Bar ignore held pause keys</source>
        <translation>Touch Barのキーは押している一時停止キーを無視する</translation>
    </message>
    <message>
        <source>Display:</source>
        <translation>画面表示:</translation>
    </message>
    <message>
        <source>Show changes of blocking on the screen</source>
        <translation>ブロックの切り替わりを画面に表示</translation>
    </message>
    <message>
        <source>When a pause key is pressed or released</source>
        <translation>一時停止キーを押したり離したりしたとき</translation>
    </message>
    <message>
        <source>When another app comes to the front</source>
        <translation>別のアプリが最前面になったとき</translation>
    </message>
    <message>
        <source>Place of the display on the screen</source>
        <translation>画面上の表示位置</translation>
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
        <translation>中央</translation>
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
        <translation>Barquellの環境設定</translation>
    </message>
    <message>
        <source>Tabs</source>
        <translation>タブ</translation>
    </message>
    <message>
        <source>General</source>
        <translation>一般</translation>
    </message>
    <message>
        <source>Touch Bar</source>
        <translation>Touch Bar</translation>
    </message>
    <message>
        <source>Shortcuts</source>
        <translation>ショートカット</translation>
    </message>
    <message>
        <source>Block the Touch Bar</source>
        <translation>Touch Barをブロック</translation>
    </message>
    <message>
        <source>Bypass %@</source>
        <translation>%@を除外</translation>
    </message>
    <message>
        <source>Touch Bar On</source>
        <translation>Touch Bar オン</translation>
    </message>
    <message>
        <source>Touch Bar Off</source>
        <translation>Touch Bar オフ</translation>
    </message>
    <message>
        <source>Authorization Complete</source>
        <translation>許可されました</translation>
    </message>
    <message>
        <source>Authorization Required</source>
        <translation>許可が必要です</translation>
    </message>
    <message>
        <source>LIKETHEAPP_TITLE</source>
        <translation>%@はお気に召しましたか?</translation>
    </message>
    <message>
        <source>LIKETHEAPP_DESC</source>
        <translation>短いレビューをお寄せいただくと、ほかの方が見つけやすくなり、開発の励みにもなります。</translation>
    </message>
    <message>
        <source>LIKETHEAPP_YES</source>
        <translation>レビューを書く</translation>
    </message>
    <message>
        <source>LIKETHEAPP_LATER</source>
        <translation>後で</translation>
    </message>
    <message>
        <source>LIKETHEAPP_NO</source>
        <translation>いいえ</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Brightness</source>
        <translation>明るさ</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>前へ</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>次へ</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>消音</translation>
    </message>
    <message>
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message>
        <source>Lock</source>
        <translation>ロック</translation>
    </message>
    <message>
        <source>Simulated Touch Bar</source>
        <translation>シミュレートされたTouch Bar</translation>
    </message>
    <message>
        <source>Barquell may filter touches</source>
        <translation>Barquellにタッチのフィルタリングを許可</translation>
    </message>
    <message>
        <source>Hold Fn</source>
        <translation>Fnを押したままにする</translation>
    </message>
    <message>
        <source>Held back: %@</source>
        <translation>ブロック: %@</translation>
    </message>
    <message>
        <source>Passed: %@</source>
        <translation>通過: %@</translation>
    </message>
    <message>
        <source>Barquell asks for it</source>
        <translation>Barquellが求めています</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Are you sure you want to remove selected apps from bypass list?</source>
        <translation>選択したアプリを除外リストから削除してもよろしいですか?</translation>
    </message>
    <message>
        <source>Are you sure?</source>
        <translation>よろしいですか?</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>レポート</translation>
    </message>
    <message>
        <source>Another copy of %@ is already running</source>
        <translation>別の%@がすでに起動しています</translation>
    </message>
    <message>
        <source>This copy is going to quit</source>
        <translation>このコピーは終了します</translation>
    </message>
    <message>
        <source>Show another copy</source>
        <translation>もう一方を表示</translation>
    </message>
    <message>
        <source>Quit another copy instead</source>
        <translation>代わりにもう一方を終了</translation>
    </message>
    <message>
        <source>Keep all copies running</source>
        <translation>すべて起動したままにする</translation>
    </message>
    <message>
        <source>Privacy Settings…</source>
        <translation>プライバシー設定…</translation>
    </message>
    <message>
        <source>Touch Bar Permission</source>
        <translation>Touch Barの許可</translation>
    </message>
    <message>
        <source>With the permission, Barquell sees the touches on the Touch Bar and the modifier keys while this user is in front, and nothing else. Without it, every touch passes.</source>
        <translation>許可があると、Barquellはこのユーザが操作している間だけTouch Barへのタッチと修飾キーを見ます。ほかのものは見ません。許可がなければ、タッチはすべて通ります。</translation>
    </message>
    <message>
        <source>An administrator allowed it on %@.</source>
        <translation>%@に管理者が許可しました。</translation>
    </message>
    <message>
        <source>%@ may hold touches back</source>
        <translation>%@はタッチを止められます</translation>
    </message>
    <message>
        <source>%@ may not hold touches back</source>
        <translation>%@はタッチを止められません</translation>
    </message>
    <message>
        <source>Withdraw</source>
        <translation>取り消す</translation>
    </message>
    <message>
        <source>The permission could not be withdrawn: the service that holds the Touch Bar does not answer.</source>
        <translation>許可を取り消せませんでした。Touch Barを管理するサービスが応答しません。</translation>
    </message>
    <message>
        <source>The permission was not given: somebody declined, or there is nobody who can be asked.</source>
        <translation>許可されませんでした。拒否されたか、確認できる人がいません。</translation>
    </message>
    <message>
        <source>The permission was not given: the service that holds the Touch Bar does not answer.</source>
        <translation>許可されませんでした。Touch Barを管理するサービスが応答しません。</translation>
    </message>
    <message>
        <source>The service that holds the Touch Bar could not do this; its log says why.</source>
        <translation>Touch Barを管理するサービスがこの操作を実行できませんでした。理由はサービスのログに記録されています。</translation>
    </message>
</context>
</TS>
