<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>すでにダウンロード中です。</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>アップデートを保存できません: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>動画トリマー</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>動画のトリミング、切り抜き、回転をフレーム単位で</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>トリミング;カット;切り出し;短縮;切り抜き;クロップ;回転;動画;ビデオ;映像;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新しいウィンドウ</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>動画のトリミング、切り抜き、回転</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet がすることは一つ、動画を短くしたり、切り抜いたり、回転したりしたコピーを作ることです。ファイルをウィンドウにドロップし、フィルムストリップ上の 2 つのハンドルをドラッグして、エクスポートします。</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>エクスポートした動画の最初の画像は、範囲の先頭で見えていたものです。音声の位置もずれません。</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>切り抜きと回転は、1 回の丁寧なリサンプリングで同時に行います。</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>色、ハイダイナミックレンジ、音声トラック、チャプター、日時を保ちます。</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>MP4 と MOV を書き出し、カメラ、スマートフォン、画面録画の動画を読み込みます。</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>元のファイルには決して手を加えず、書きかけのファイルも残しません。</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>動画 (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>開く</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>すべてのファイル (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>「%1」は編集中の動画です。別の名前を選んでください。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>はい(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>いいえ(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>閉じる</translation>
    </message>
</context>
<context>
    <name>QShortcut</name>
    <message>
        <source>Ctrl</source>
        <extracomment>The names of keys, as they are on keyboards.</extracomment>
        <translation>Ctrl</translation>
    </message>
    <message>
        <source>Shift</source>
        <translation>Shift</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>スペース</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>←</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>→</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>↑</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>↓</translation>
    </message>
    <message>
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message>
        <source>End</source>
        <translation>End</translation>
    </message>
    <message>
        <source>PgUp</source>
        <translation>PgUp</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>PgDown</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Brisklet について</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>アップデートを確認…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新しいウィンドウ</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>動画を開く…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>エクスポート…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>動画を閉じる</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>再生ヘッドの位置を開始点に設定</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>再生ヘッドの位置を終了点に設定</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>前のフレーム</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>次のフレーム</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>ループ再生</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>ファイル(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>クリップ(&amp;C)</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>ファイルマネージャーから削除</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>ファイルマネージャーに追加</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>ファイルマネージャーの項目を更新できませんでした: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>動画のトリミング、切り抜き、回転をフレーム単位で行います。

GNU General Public License バージョン 3 以降に基づくフリーソフトウェアです。</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>開始点の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>開始点の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>終了点の変更を元に戻す</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>終了点の変更をやり直す</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>切り抜きを元に戻す</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>切り抜きをやり直す</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>切り抜きの解除を元に戻す</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>切り抜きの解除をやり直す</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>回転を元に戻す</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>回転をやり直す</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>ミュートを元に戻す</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>ミュートをやり直す</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>ミュート解除を元に戻す</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>ミュート解除をやり直す</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>最後の編集を再び開く</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>最後のエクスポートを表示</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>元に戻す</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>やり直す</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>時間を指定して移動…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>範囲の先頭、次に動画の先頭</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>範囲の末尾、次に動画の末尾</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>1 秒戻る</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>1 秒進む</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>編集(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>移動(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>ヘルプ(&amp;H)</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>フォルダー「%1」はもうありません。</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>フォルダー「%1」を表示するファイルマネージャーがありません。</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>一度に開くビデオは%1本までです。</translation>
    </message>
</context>
<context>
    <name>brisklet::CommandLine</name>
    <message>
        <source>Usage: brisklet [VIDEO...]
Trims videos. Each VIDEO opens in a window of its own.

  --install-quick-action  add &quot;Trim Video&quot; to the menus of file managers and exit
  --help                  print this and exit
  --version               print the version and exit
</source>
        <extracomment>What --help prints. The options stay as they are; lines have at most 79 letters.</extracomment>
        <translation>使い方: brisklet [VIDEO...]
動画をトリミングします。VIDEO はそれぞれ別のウィンドウで開きます。

  --install-quick-action  ファイルマネージャーに「動画をトリミング」を追加する
  --help                  このヘルプを表示する
  --version               バージョンを表示する
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>ドロップ領域</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>エディター</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>再び開く</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>%1 でエクスポート…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>エクスポートの設定</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>既定値に戻す</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>形式</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>解像度</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>一時停止</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>ミュート解除 (このままではエクスポート時に音声が除かれます)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>左に回転</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>切り抜きを解除</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>切り抜き</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>約 %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>再生/一時停止</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>ミュート/ミュート解除</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>切り抜き/切り抜きの解除</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>切り抜き枠</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2、位置 %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>切り抜き枠を移動</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>右辺または下辺を移動</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>左辺または上辺を移動</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>切り抜き (マウス操作)</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>枠の中をドラッグ</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>ハンドルをドラッグ</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>切り抜き枠のサイズを変更</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>ドラッグ中に Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>ドラッグを取り消す</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>切り抜き枠 (Tab で移動)</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>矢印キー</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>これらのキーと Shift</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>10 倍移動</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet はすでに起動していますが、応答しません。</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>表示</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>サーバーの応答に時間がかかりすぎました。</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>「%1」は安全なアドレスではありません。</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>サーバーの転送先「%1」は安全なアドレスではありません。</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>サーバーが送信するデータが多すぎます。</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>ダウンロードを保存できません: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>「%1」への接続は安全ではありません: %2。</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>ここに動画をドロップ</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>動画を開く…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>トリミング済み</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>「%1」には映像トラックがありません。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>「%1」を開けませんでした: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>「%1」を再び開けませんでした: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>「%1」を表示できなくなりました: デコーダーが予期せず停止しました。編集内容は失われていません。</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>問題が発生しました</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>キャンセル</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>↓ キーで形式と解像度のメニューが開きます</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>エクスポートボタン (Tab で移動)</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>形式と解像度を選択</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>MPEG-4 ムービー</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>QuickTime ムービー</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>エクスポートに失敗しました: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>エクスポートが完了しました</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>エクスポートに失敗しました</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>動画をエクスポートしています。</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>エクスポート中…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>エクスポート</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>エクスポートの進捗</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>残り約 %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>オリジナル</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>動画をトリミング</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>選択した動画を Brisklet で開く</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>「%1」を書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>「%1」を削除できませんでした: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>「%1」はこのコンピューター上になく、それに通じるフォルダーもありません。</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>時間を指定して移動</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>移動先:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>移動</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>時間として読み取れません。1:23.456、+10f、#2412 のように入力してください。</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>動画の終わりは %1 です。</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>この動画のフレーム番号は不明です。時間を入力してください。</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>最後のフレームは #%1 です。</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>時間、ここからのフレーム数、またはフレーム番号: 1:23.456、+10f、#2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>時間、またはここからのフレーム数: 1:23.456、+10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>フレーム数だけ進むには +%1f、その番号のフレームへ移動するには #%1 と入力してください。</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>動画の始まりは %1 です。</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>キーボードショートカット</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>キーまたはジェスチャー</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>コントロール</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>1/10 の速さ</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>1/100 の速さ</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>サーバー「%1」が見つかりません。</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>サーバー「%1」が接続を受け付けません。</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>「%1」への接続が切断されました。</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>サーバー「%1」がリダイレクトを繰り返しています。</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>サーバー「%1」がエラーを返しました (ステータス %2)。</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>「%1」に接続できませんでした (詳細: %2)。</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>証明書が別のサーバーのものです</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>証明書の有効期限が切れているか、まだ有効になっていません</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>証明書が信頼されていません</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>証明書を検証できません (詳細: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>「%1」を作成できませんでした: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>「%1」を書き込めませんでした: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>「%1」をコピーできませんでした: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>「%1」を削除できませんでした: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>存在しません。</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>プログラムの場所を特定できませんでした。</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>開始点</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>再生ヘッド</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>終了点</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>1 フレーム戻す</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>1 フレーム進める</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>1 秒戻す</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>1 秒進める</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>可能なかぎり戻す</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>可能なかぎり進める</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>これらのキーと Shift</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>10 倍移動</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>タイムライン (マウス操作)</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>クリックまたはドラッグ</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>再生ヘッドを移動</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>ハンドルをドラッグ</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>開始点または終了点を移動</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>ドラッグ中に Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>ドラッグを取り消す</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>開始点、再生ヘッド、終了点 (Tab で移動)</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>フィルムストリップを作成中…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Shift を押しながらドラッグ</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>ポインターの動きの 10 分の 1 だけ移動</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>上下に大きく離して Shift を押しながらドラッグ</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>100 分の 1 だけ移動</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>ホイール</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>1 フレームずつ移動</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Shift を押しながらホイール</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>10 フレームずつ移動</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>ハンドルの上でホイール</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>範囲のその端を少しずつ移動</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>タイムライン</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>範囲 %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>アップデートを自動的に確認しますか?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet は新しいバージョンがあるかどうかを 1 日 1 回確認できます。メニューから確認することもできます。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>アップデートを確認中…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>最新の状態です。</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 は入手できる最新のバージョンです。</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>アップデート</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>アップデートをインストール</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>後で通知</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>このバージョンをスキップ</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Brisklet の新しいバージョンがあります。</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 があります (現在は %2)。インストールしますか?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Brisklet %1 をダウンロード中…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>アップデートできませんでした。</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>アップデート情報が破損しています。</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>アップデートを確認できませんでした: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>アップデートのサイズが大きすぎます。</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>アップデートをダウンロードできませんでした: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>アップデートが不完全です。インストールされていません。</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>アップデートが本物ではありません。署名が正しくありません。インストールされていません。</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>アップデートをインストールするプログラムがありません。アップデートの場所: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>エクスポートを中止して閉じますか?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>中止して閉じる</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>エクスポートを続ける</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>%n 件のエクスポートを中止して閉じますか?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
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
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>不明なオプション %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 は値を取りません</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 には値が必要です</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 が 2 回指定されています</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 には数値が必要です (「%2」は不可)</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 には整数が必要です (「%2」は不可)</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>引数が足りません: %1 が必要です</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>予期しない引数「%1」</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>空の名前があります</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count には 1 から %1 までの数が必要です</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS には 0 以上の数が必要です (「%1」は不可)</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop には X,Y,W,H が必要です (「%1」は不可)</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop には画像に対する割合 (0 から 1) で、面積のある領域が必要です</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format に使えるのは %1 です (「%2」は不可)</translation>
    </message>
    <message>
        <source> and </source>
        <translation> と </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>出力の名前から形式がわかりません: --format %1 を付けてください</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> または </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 に「%2」は使えません</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start に負の数は使えません</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end は --start より後でなければなりません</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge にはピクセル数が必要です</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress に使えるのは json だけです (「%1」は不可)</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>コマンドが指定されていません</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>「%1」というコマンドはありません</translation>
    </message>
    <message>
        <source>Usage: brisklet-cli probe SOURCE
       brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
       brisklet-cli frame SOURCE SECONDS OUTPUT.png
       brisklet-cli export SOURCE OUTPUT [--start S] [--end S] [--crop X,Y,W,H]
                    [--rotate DEGREES] [--mute] [--max-short-edge N]
                    [--format %1] [--progress json]
</source>
        <extracomment>Commands and options stay as they are; %1 is “mp4|mov”. Lines have at most 79 letters.</extracomment>
        <translation>使い方: brisklet-cli probe SOURCE
        brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
        brisklet-cli frame SOURCE SECONDS OUTPUT.png
        brisklet-cli export SOURCE OUTPUT [--start S] [--end S]
                     [--crop X,Y,W,H] [--rotate DEGREES] [--mute]
                     [--max-short-edge N] [--format %1] [--progress json]
</translation>
    </message>
    <message>
        <source>probe      prints what the file is, as one JSON object.
filmstrip  writes N (12) small stills from the middles of N equal slices to the
           directory as 00.png, 01.png, ..., and prints their times as JSON.
frame      writes the upright picture that a player shows at that time.
export     writes a copy of the file:
  --start, --end        the part to keep, in seconds (all of it)
  --crop                in fractions of the picture as displayed after --rotate,
                        from its top left corner
  --rotate              clockwise quarter turns, in degrees
  --mute                leaves the sound out
  --max-short-edge      scales down to this many pixels on the shorter side
  --format              %1 (what the output’s name ends in)
  --progress json       prints one JSON line per report instead of a bar
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        other encoder settings than the program’s, for measurements

  --help, --version     print this, or the version, and exit

Exit status: 0 done; 1 failed; 2 wrong usage; 130 interrupted.
</source>
        <extracomment>Commands and options stay as they are; %1 is “mp4 or mov”. Lines have at most 79 letters.</extracomment>
        <translation>probe      ファイルの情報を 1 つの JSON オブジェクトとして表示します。
filmstrip  N (12) 等分した各区間の中央の小さな静止画を、ディレクトリに
           00.png、01.png、... として書き込み、その時間を JSON で表示します。
frame      その時間にプレーヤーが表示する画像を、正しい向きで書き込みます。
export     ファイルのコピーを書き込みます:
  --start, --end        残す部分 (秒単位、省略時は全体)
  --crop                --rotate 後に表示される画像に対する割合、
                        左上の角を基準とします
  --rotate              時計回りの回転、90 度単位
  --mute                音声を除きます
  --max-short-edge      短辺をこのピクセル数まで縮小します
  --format              %1 (省略時は出力の名前の末尾による)
  --progress json       進捗バーの代わりに、報告ごとに 1 行の JSON を表示します
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        プログラムとは別のエンコーダー設定 (測定用)

  --help, --version     このヘルプまたはバージョンを表示して終了します

終了コード: 0 完了、1 失敗、2 使い方の誤り、130 中断。
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>エクスポートに失敗しました: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>「%1」を書き込めませんでした: %2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>「%1」を開けませんでした: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>結果を書き出せませんでした: %1。</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>「%1」には映像トラックがありません。</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>画像を PNG として書き込めませんでした。</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>フォルダー「%1」を作成できませんでした: %2。</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>長さがありません。</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>「%1」のフィルムストリップを作成できませんでした: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>画像を作成できませんでした: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>ファイルマネージャーに追加できませんでした: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>ファイルマネージャーのメニューに「動画をトリミング」を追加しました</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>不明なオプション「%1」</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>動画ファイルではないか、破損しています。</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>この形式には対応していません。</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>この映像コーデックには対応していません。</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>暗号化またはコピー保護されています。</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>ファイルが存在しません。</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>このファイルを読み取る権限がありません。</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>ファイル名が長すぎます。</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>ファイルへのリンクが切れています。</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>通常のファイルではありません。</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>動画ファイルではなくフォルダーです。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>ファイルを読み取れません: %1。</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>動画を読み取れません: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>「%1」は開いた後に変更されました。</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>ファイルが途中で終わっています。</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>読み取り中に動画が途中で切れました。</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>動画の読み取り中にディスクがエラーを報告しました。</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>ファイルに映像トラックがありません。</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>このファイルの画像を 1 枚もデコードできません。</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>この時間には画像がありません。</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>ピクセル形式「%1」の画像は変換できません。</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>画像の色を変換できません。</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>画像の色を変換できません。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>「%1」を開けませんでした: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>エクスポートする範囲が空です。</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>元のファイルに映像トラックがありません。</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>この動画のエクスポートを準備できませんでした。</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>エクスポートする動画がありません。</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>動画をそれ自身に上書きしてエクスポートすることはできません。</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>この範囲の画像を 1 枚もデコードできません。</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>新しいファイルが書き込み中に破損しました。</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>エクスポートに必要なエンコーダーがインストールされていません。</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>エンコーダー %1 は設定「%2」を受け付けません。</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>「%1」は別のエクスポートが書き込み中です。</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>未完成の新しいファイルが別のプログラムによって削除されました。</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>新しいファイルの保存先フォルダー「%1」が存在しません。</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>フォルダー「%1」に書き込む権限がありません。</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>フォルダー「%1」のあるディスクは書き込み禁止です。</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>新しいファイルと同じ名前のフォルダーがあります。</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>新しいファイルと同じ名前の、通常のファイルではないものがあります。</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>新しいファイルの名前が長すぎます。</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>新しいファイルの書き込み中にディスクがエラーを報告しました。</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>新しいファイルを書き込めません: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>メモリーが足りません。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>ディスクの空き容量が足りません。</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>ファイルがこのディスクには大きすぎます。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>ディスクがエラーを報告しました。</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>メディアエンジンが見つかりません: %1。</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet のインストールが不完全です。もう一度インストールしてください。</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet がアップデートされました。もう一度起動してください。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>許可がありません</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>許可されていない操作です</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>そのようなファイルやフォルダーはありません</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>フォルダーではありません</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>ファイルが存在します</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>フォルダーです</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>無効な引数です</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>開いているファイルが多すぎます</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>読み取り専用のファイルシステムです</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>ファイルがネットワークディスク上にもうありません</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>接続がタイムアウトしました</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>デバイスまたはリソースが使用中です</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>シンボリックリンクの階層が多すぎます</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>出力を読むプログラムが終了しました</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>デバイスに空き領域がありません</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>ディスクの割り当て量を超えました</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>入出力エラーです</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>ファイル名が長すぎます</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>外部ライブラリの一般的なエラーです</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>FFmpeg ではまだ実装されていません</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>予期しないエラー (詳細: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>フォルダー「%1」がありません。</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>現在は別のファイルがその名前になっています。</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>フォルダー「%1」にはもうありません。</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>空き容量が足りません。動画には約 %1 必要ですが、空きは %2 です。</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>システムの負荷が高すぎて、新しいスレッドを開始できません。</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>ビデオデコーダーが予期せず停止しました。</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>ビデオエンコーダーが予期せず停止しました。新しいファイルは残っていません。</translation>
    </message>
</context>
</TS>
