<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>已在下载中。</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>无法保存更新：%1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>视频修剪器</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>修剪、裁剪和旋转视频，精确到帧</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>剪切;剪辑;修剪;截取;缩短;裁剪;旋转;视频;影片;电影;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新建窗口</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>修剪、裁剪和旋转视频</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet 只做一件事：为视频制作更短、裁剪过或旋转过的副本。将文件拖放到窗口中，拖动胶片条上的两个手柄，然后导出。</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>导出视频的第一帧就是您在范围起点看到的画面，声音也保持原位。</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>裁剪和旋转一步完成，只进行一次精细的重采样。</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>保留色彩、高动态范围、音轨、章节和日期。</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>写入 MP4 和 MOV；可读取相机、手机和录屏软件生成的视频。</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>从不改动原文件，也绝不留下写了一半的文件。</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>视频 (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>导出</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>打开</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>所有文件 (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>“%1”是正在编辑的视频。请选择其他名称。</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>是(&amp;Y)</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>否(&amp;N)</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>关闭</translation>
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
        <translation>空格</translation>
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
        <translation>上方向</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>下方向</translation>
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
        <translation>关于 Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>检查更新…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>新建窗口</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>打开视频…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>导出…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>关闭视频</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>将修剪起点设在播放头处</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>将修剪终点设在播放头处</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>上一帧</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>下一帧</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>循环播放</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>文件(&amp;F)</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>片段(&amp;C)</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>从文件管理器中移除</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>添加到文件管理器</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>无法更新文件管理器菜单项：%1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>修剪、裁剪和旋转视频，精确到帧。

以 GNU 通用公共许可证第 3 版或更高版本发布的自由软件。</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>撤销修剪起点</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>重做修剪起点</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>撤销修剪终点</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>重做修剪终点</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>撤销裁剪</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>重做裁剪</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>撤销移除裁剪</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>重做移除裁剪</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>撤销旋转</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>重做旋转</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>撤销静音</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>重做静音</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>撤销取消静音</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>重做取消静音</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>重新打开上次编辑</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>显示上次导出</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>撤销</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>重做</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>转到时间…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>范围起点，然后视频开头</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>范围终点，然后视频结尾</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>后退一秒</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>前进一秒</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>编辑(&amp;E)</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>转到(&amp;G)</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>帮助(&amp;H)</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>文件夹“%1”已不存在。</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>没有可以显示文件夹“%1”的文件管理器。</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>一次最多打开 %1 个视频。</translation>
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
        <translation>用法：brisklet [VIDEO...]
修剪视频。每个 VIDEO 在各自的窗口中打开。

  --install-quick-action  将“修剪视频”添加到文件管理器菜单并退出
  --help                  显示此帮助并退出
  --version               显示版本并退出
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>拖放区域</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>编辑器</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>重新打开</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>导出 %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>导出选项</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>恢复默认设置</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>格式</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>分辨率</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>暂停</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>取消静音（否则导出时将去除声音）</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>向左旋转</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>移除裁剪</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>裁剪</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>约 %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>播放或暂停</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>静音或取消静音</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>裁剪或移除裁剪</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>裁剪框</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2，位于 %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>移动裁剪框</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>移动其右边或下边</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>移动其左边或上边</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>裁剪（鼠标操作）</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>在框内拖动</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>拖动手柄</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>调整裁剪框大小</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>拖动时按 Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>取消此次拖动</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>裁剪框（按 Tab 到达）</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>方向键</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift 加上述按键</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>移动十倍距离</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet 已在运行，但没有响应。</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>显示</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>服务器响应时间过长。</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>“%1”不是安全的地址。</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>服务器指向“%1”，该地址不安全。</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>服务器发送的数据过多。</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>无法保存下载内容：%1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>与“%1”的连接不安全：%2。</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>将视频拖放到此处</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>打开视频…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>已修剪</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1”不包含视频轨道。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>无法重新打开“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>“%1”无法继续显示：其解码器意外停止。编辑内容没有丢失。</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>出错了</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>取消</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>按 ↓ 键打开格式和分辨率菜单</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>导出按钮（按 Tab 到达）</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>选择格式和分辨率</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>MPEG-4 影片</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>QuickTime 影片</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>导出失败：%1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>导出完成</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>导出失败</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>正在导出视频。</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>正在导出…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>导出</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>导出进度</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>还剩约 %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>原始</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>修剪视频</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>用 Brisklet 打开所选视频</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>无法移除“%1”：%2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>“%1”不在此计算机上，这里也没有通向它的文件夹。</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>转到时间</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>转到：</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>转到</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>这不是时间。请输入例如 1:23.456、+10f 或 #2412。</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>视频在 %1 处结束。</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>此视频的帧编号未知。请输入时间。</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>最后一帧是 #%1。</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>时间、相对此处的帧数或帧编号：1:23.456、+10f、#2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>时间或相对此处的帧数：1:23.456、+10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>输入 +%1f 可按帧移动，输入 #%1 可转到该编号的帧。</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>视频从 %1 处开始。</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>键盘快捷键</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>操作</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>按键或手势</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>控件</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>1/10 速度</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>1/100 速度</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>找不到服务器“%1”。</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>服务器“%1”拒绝连接。</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>与“%1”的连接已中断。</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>服务器“%1”不停地重定向。</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>服务器“%1”返回错误（状态 %2）。</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>与“%1”的连接失败（详情：%2）。</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>其证书属于另一台服务器</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>其证书已过期或尚未生效</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>其证书不受信任</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>无法验证其证书（详情：%1）</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>无法创建“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>无法写入“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>无法复制“%1”：%2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>无法移除“%1”：%2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>它不存在。</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>无法确定程序的位置。</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>修剪起点</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>播放头</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>修剪终点</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>后退一帧</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>前进一帧</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>后退一秒</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>前进一秒</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>尽可能后退</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>尽可能前进</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift 加上述按键</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>移动十倍距离</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>时间轴（鼠标操作）</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>点击或拖动</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>移动播放头</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>拖动手柄</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>移动修剪起点或终点</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>拖动时按 Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>取消此次拖动</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>修剪起点、播放头和修剪终点（按 Tab 到达）</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>正在生成胶片条…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>按住 Shift 拖动</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>移动指针距离的十分之一</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>按住 Shift 拖动到上方或下方远处</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>移动指针距离的百分之一</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>滚轮</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>移动一帧</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>按住 Shift 滚动滚轮</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>移动十帧</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>在手柄上滚动滚轮</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>逐步移动范围的这一端</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>时间轴</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>范围 %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>要自动检查更新吗？</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet 可以每天检查一次是否有新版本。您也可以从菜单中检查。</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>正在检查更新…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>已是最新版本。</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 是目前的最新版本。</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>更新</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>安装更新</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>稍后提醒</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>跳过此版本</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Brisklet 有新版本可用。</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 已发布；您使用的是 %2。要安装吗？</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>正在下载 Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>更新失败。</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>更新列表已损坏。</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>无法检查更新：%1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>更新文件过大。</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>无法下载更新：%1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>更新不完整，未安装。</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>更新不可信：其签名有误。未安装。</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>没有可用于安装更新的程序。更新位于：%1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>要停止导出并关闭吗？</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>停止并关闭</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>继续导出</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>要停止 %n 项导出并关闭吗？</numerusform>
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
        <translation>%1 分钟</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 小时</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>未知选项 %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 不接受值</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 需要一个值</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 重复指定</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 需要数字，而不是“%2”</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 需要整数，而不是“%2”</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>缺少内容：需要 %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>意外的参数“%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>有名称为空</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count 需要 1 到 %1 之间的数字</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS 需要不小于 0 的数字，而不是“%1”</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop 需要 X,Y,W,H，而不是“%1”</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop 需要画面的比例值（0 到 1），且面积不为零</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format 支持 %1，不支持“%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> 和 </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>无法从输出名称判断格式：请添加 --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> 或 </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 不支持“%2”</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start 不能为负</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end 必须晚于 --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge 需要像素数</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress 只支持 json，不支持“%1”</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>未指定命令</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>“%1”不是命令</translation>
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
        <translation>用法：brisklet-cli probe SOURCE
      brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
      brisklet-cli frame SOURCE SECONDS OUTPUT.png
      brisklet-cli export SOURCE OUTPUT [--start S] [--end S] [--crop X,Y,W,H]
                   [--rotate DEGREES] [--mute] [--max-short-edge N]
                   [--format %1] [--progress json]
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
        <translation>probe      以一个 JSON 对象输出文件的信息。
filmstrip  将视频等分为 N（12）段，取各段中点的小静态图，以 00.png、01.png、...
           写入目录，并以 JSON 输出其时间。
frame      写入播放器在该时间显示的画面（方向已校正）。
export     写入文件的副本：
  --start, --end        要保留的部分，以秒为单位（默认全部）
  --crop                经 --rotate 后所显示画面的比例，
                        从画面左上角算起
  --rotate              顺时针旋转 90 度的倍数，以度为单位
  --mute                去除声音
  --max-short-edge      缩小到短边为此像素数
  --format              %1（默认取决于输出名称的结尾）
  --progress json       每次报告输出一行 JSON，而不是进度条
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        不同于程序自身的编码器设置，用于测试

  --help, --version     显示此帮助或版本并退出

退出状态：0 完成；1 失败；2 用法错误；130 被中断。
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>导出失败：%1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>无法写入“%1”：%2。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>无法写入结果：%1。</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1”不包含视频轨道。</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>无法将图像写入为 PNG。</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>无法创建文件夹“%1”：%2。</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>它没有时长。</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>无法生成“%1”的胶片条：%2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>无法生成图像：%1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>无法添加到文件管理器：%1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>已将“修剪视频”添加到文件管理器菜单</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>未知选项“%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>它不是视频文件，或者已损坏。</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>不支持其格式。</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>不支持其视频编解码器。</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>它已加密或受到复制保护。</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>您没有读取此文件的权限。</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>文件名过长。</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>该文件的链接已失效。</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>它不是普通文件。</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>它是文件夹，不是视频文件。</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>文件为空。</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>无法读取文件：%1。</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>无法读取视频：%1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>“%1”在打开之后被更改。</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>文件过早结束。</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>视频在读取时被截短。</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>读取视频时磁盘报告了错误。</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>文件不包含视频轨道。</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>无法解码此文件中的任何一帧画面。</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>此时间处没有画面。</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>无法转换像素格式为“%1”的画面。</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>无法转换这些画面的颜色。</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>无法转换画面的颜色。</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>无法打开“%1”：%2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>要导出的范围为空。</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>源文件不包含视频轨道。</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>无法为此视频准备导出。</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>没有可导出的视频。</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>视频不能导出并覆盖自身。</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>无法解码此范围内的任何一帧画面。</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>新文件在写入时损坏。</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>未安装导出所需的编码器。</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>编码器 %1 不接受设置“%2”。</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>另一项导出正在写入“%1”。</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>未完成的新文件已被其他程序移除。</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>用于存放新文件的文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>您没有写入文件夹“%1”的权限。</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>文件夹“%1”所在的磁盘有写保护。</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>已有文件夹与新文件同名。</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>已有一个非普通文件与新文件同名。</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>新文件的名称过长。</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>写入新文件时磁盘报告了错误。</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>无法写入新文件：%1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>内存不足。</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>磁盘空间不足。</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>文件对于此磁盘来说过大。</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>磁盘报告了错误。</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>找不到媒体引擎：%1。</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet 安装不完整。请重新安装。</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet 已更新。请重新启动。</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1。</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>权限不足</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>不允许的操作</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>没有那个文件或文件夹</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>不是文件夹</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>文件已存在</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>是一个文件夹</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>无效的参数</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>打开的文件过多</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>只读文件系统</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>文件已不在网络磁盘上</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>连接超时</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>设备或资源忙</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>符号链接的层数过多</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>读取输出的程序已结束</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>设备上没有剩余空间</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>超出磁盘配额</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>输入/输出错误</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>文件名过长</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>外部库中的一般性错误</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>FFmpeg 尚未实现此功能</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>意外错误（详情：%1）</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>文件夹“%1”不存在。</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>现在有另一个文件使用它的名称。</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>它已不在文件夹“%1”中。</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>可用空间不足：视频约需 %1，可用 %2。</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>系统过于繁忙，无法启动新的线程。</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>视频解码器意外停止。</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>视频编码器意外停止。新文件没有任何残留。</translation>
    </message>
</context>
</TS>
