<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja_JP" sourcelanguage="en">
<context>
    <name>AbstractGui\CVqAbstractMenu</name>
    <message>
        <source>ctrl</source>
        <translation>ctrl</translation>
    </message>
    <message>
        <source>alt</source>
        <comment>keyboard key</comment>
        <translation>alt</translation>
    </message>
    <message>
        <source>shift</source>
        <comment>keyboard key</comment>
        <translation>shift</translation>
    </message>
    <message>
        <source>Ctrl</source>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Alt</source>
        <comment>keyboard key</comment>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Shift</source>
        <comment>keyboard key</comment>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Break</source>
        <comment>Break keyboard key</comment>
        <translation>Break</translation>
    </message>
    <message>
        <source>Backspace</source>
        <comment>Backspace keyboard key</comment>
        <translation>BackSpace</translation>
    </message>
    <message>
        <source>Tab</source>
        <comment>Tab keyboard key</comment>
        <translation>Tab</translation>
    </message>
    <message>
        <source>Num 5</source>
        <translation>テンキー 5</translation>
    </message>
    <message>
        <source>Enter</source>
        <comment>Enter keyboard key</comment>
        <translation>Enter</translation>
    </message>
    <message>
        <source>Pause</source>
        <comment>Pause keyboard key</comment>
        <translation>Pause</translation>
    </message>
    <message>
        <source>Esc</source>
        <comment>Esc keyboard key</comment>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <comment>Space keyboard key</comment>
        <translation>スペース</translation>
    </message>
    <message>
        <source>PageUp</source>
        <comment>PageUp keyboard key</comment>
        <translation>PageUp</translation>
    </message>
    <message>
        <source>PageDown</source>
        <comment>PageDown keyboard key</comment>
        <translation>PageDown</translation>
    </message>
    <message>
        <source>End</source>
        <comment>End keyboard key</comment>
        <translation>End</translation>
    </message>
    <message>
        <source>Home</source>
        <comment>Home keyboard key</comment>
        <translation>Home</translation>
    </message>
    <message>
        <source>Left</source>
        <comment>Left keyboard key</comment>
        <translation>←</translation>
    </message>
    <message>
        <source>Up</source>
        <comment>Up keyboard key</comment>
        <translation>↑</translation>
    </message>
    <message>
        <source>Right</source>
        <comment>Right keyboard key</comment>
        <translation>→</translation>
    </message>
    <message>
        <source>Down</source>
        <comment>Down keyboard key</comment>
        <translation>↓</translation>
    </message>
    <message>
        <source>Select</source>
        <comment>Select keyboard key (not present on most keyboards)</comment>
        <translation>選択</translation>
    </message>
    <message>
        <source>Print</source>
        <comment>Print keyboard key</comment>
        <translation>印刷</translation>
    </message>
    <message>
        <source>Exec</source>
        <translation>実行</translation>
    </message>
    <message>
        <source>SnapShot</source>
        <translation>PrintScreen</translation>
    </message>
    <message>
        <source>Insert</source>
        <comment>Insert keyboard key</comment>
        <translation>Insert</translation>
    </message>
    <message>
        <source>Delete</source>
        <comment>Delete keyboard key</comment>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Num0</source>
        <translation>テンキー 0</translation>
    </message>
    <message>
        <source>Num1</source>
        <translation>テンキー 1</translation>
    </message>
    <message>
        <source>Num2</source>
        <translation>テンキー 2</translation>
    </message>
    <message>
        <source>Num3</source>
        <translation>テンキー 3</translation>
    </message>
    <message>
        <source>Num4</source>
        <translation>テンキー 4</translation>
    </message>
    <message>
        <source>Num5</source>
        <translation>テンキー 5</translation>
    </message>
    <message>
        <source>Num6</source>
        <translation>テンキー 6</translation>
    </message>
    <message>
        <source>Num7</source>
        <translation>テンキー 7</translation>
    </message>
    <message>
        <source>Num8</source>
        <translation>テンキー 8</translation>
    </message>
    <message>
        <source>Num9</source>
        <translation>テンキー 9</translation>
    </message>
    <message>
        <source>Num Lock</source>
        <comment>NumLock keyboard key</comment>
        <translation>NumLock</translation>
    </message>
    <message>
        <source>Scroll Lock</source>
        <comment>Scroll_key</comment>
        <translation>ScrollLock</translation>
    </message>
</context>
<context>
    <name>DelayedProgressWndBase</name>
    <message>
        <source>Progress: %d%%</source>
        <translation>進行状況: %d%%</translation>
    </message>
    <message>
        <source>Progress: %3.2f%%</source>
        <translation>進行状況: %3.2f%%</translation>
    </message>
    <message>
        <source>Time remaining: %d hour(s)</source>
        <translation>残り時間: %d 時間</translation>
    </message>
    <message>
        <source>Time remaining: %d minute(s)</source>
        <translation>残り時間: %d 分</translation>
    </message>
    <message>
        <source>Time remaining: %d seconds</source>
        <translation>残り時間: %d 秒</translation>
    </message>
    <message>
        <source>Finalizing...</source>
        <translation>完了処理中...</translation>
    </message>
</context>
<context>
    <name>ProgressPanel</name>
    <message>
        <source>%1 elapsed</source>
        <translation>経過 %1</translation>
    </message>
    <message>
        <source>almost done</source>
        <translation>まもなく完了</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <translation>残り約 %1</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 秒</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 分</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 時間</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 時間 %2 分</translation>
    </message>
    <message>
        <source>Cancelling...</source>
        <translation>キャンセルしています...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>ToolbarMenu</name>
    <message>
        <source>Hide “%1”</source>
        <translation>「%1」を隠す</translation>
    </message>
    <message>
        <source>Remove separator</source>
        <translation>区切り線を削除</translation>
    </message>
    <message>
        <source>Show hidden buttons</source>
        <translation>隠したボタンを表示</translation>
    </message>
    <message>
        <source>Customise...</source>
        <translation>カスタマイズ...</translation>
    </message>
</context>
<context>
    <name>ToolbarSession</name>
    <message>
        <source>More buttons</source>
        <translation>その他のボタン</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupButtons</name>
    <message>
        <source>There are no buttons on this toolbar.</source>
        <translation>このツールバーにはボタンがありません。</translation>
    </message>
    <message>
        <source>Buttons of the toolbar</source>
        <translation>ツールバーのボタン</translation>
    </message>
    <message>
        <source>Move up</source>
        <translation>上へ</translation>
    </message>
    <message>
        <source>Move down</source>
        <translation>下へ</translation>
    </message>
    <message>
        <source>Add separator</source>
        <translation>区切り線を追加</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>削除</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupCommands</name>
    <message>
        <source>Search commands</source>
        <translation>コマンドを検索</translation>
    </message>
    <message>
        <source>There are no commands.</source>
        <translation>コマンドがありません。</translation>
    </message>
    <message>
        <source>No command matches.</source>
        <translation>一致するコマンドがありません。</translation>
    </message>
    <message>
        <source>Commands</source>
        <translation>コマンド</translation>
    </message>
    <message>
        <source>Add to the toolbar</source>
        <translation>ツールバーに追加</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupPad</name>
    <message>
        <source>Separator</source>
        <translation>区切り線</translation>
    </message>
    <message>
        <source>Arrow keys choose a button, with Alt they move it. Delete removes it, Insert adds a separator.</source>
        <translation>矢印キーでボタンを選び、Alt と矢印キーで移動します。Delete で削除し、Insert で区切り線を追加します。</translation>
    </message>
    <message>
        <source>Customise %1</source>
        <translation>%1 のカスタマイズ</translation>
    </message>
    <message>
        <source>%1, %2 of %3 on %4</source>
        <translation>%1、%4 の %3 個中 %2 番目</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupPanel</name>
    <message>
        <source>Customise toolbars</source>
        <translation>ツールバーのカスタマイズ</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>リセット</translation>
    </message>
    <message>
        <source>All toolbars as they were delivered</source>
        <translation>すべてのツールバーを初期状態に戻す</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>完了</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupRow</name>
    <message>
        <source>Separator</source>
        <translation>区切り線</translation>
    </message>
    <message>
        <source>Not available</source>
        <translation>利用できません</translation>
    </message>
</context>
<context>
    <name>ToolbarSetupTabs</name>
    <message>
        <source>Toolbar</source>
        <translation>ツールバー</translation>
    </message>
</context>
</TS>
