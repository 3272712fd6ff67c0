<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ar" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>يجري تنزيله بالفعل.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>لا يمكن حفظ التحديث: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>أداة قص الفيديو</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>قص الفيديو واقتصاصه وتدويره بدقة الإطار الواحد</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>قص;قطع;تقصير;اقتصاص;تدوير;فيديو;فيلم;مقطع;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>نافذة جديدة</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>قص الفيديو واقتصاصه وتدويره</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>يؤدي Brisklet مهمة واحدة: إنشاء نسخة من الفيديو أقصر أو مقتصة أو مدارة. أفلت ملفًا على نافذته، واسحب المقبضين فوق شريط اللقطات، ثم صدّر.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>أول صورة في الملف المصدَّر هي التي رأيتها عند بداية النطاق، ويبقى الصوت في موضعه.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>الاقتصاص والتدوير في خطوة واحدة، مع إعادة اعتيان واحدة متقنة.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>يحافظ على الألوان والمدى الديناميكي العالي ومسارات الصوت والفصول والتواريخ.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>يكتب MP4 و MOV، ويقرأ ما تكتبه الكاميرات والهواتف ومسجلات الشاشة.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>لا يمس الأصل أبدًا، ولا يترك أبدًا ملفًا لم تكتمل كتابته.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>ملفات الفيديو (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>تصدير</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>فتح</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>كل الملفات (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>الملف «%1» هو الفيديو الذي يجري تحريره. اختر اسمًا آخر.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;نعم</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;لا</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>أغلق</translation>
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
        <translation>مسافة</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>يسار</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>يمين</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>الأعلى</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>الأسفل</translation>
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
        <translation>عن Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>التحقق من وجود تحديثات…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>إنهاء</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>نافذة جديدة</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>فتح فيديو…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>تصدير…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>إغلاق الفيديو</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>ضبط بداية القص عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>ضبط نهاية القص عند رأس التشغيل</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>الإطار السابق</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>الإطار التالي</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>تكرار التشغيل</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;ملف</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>مق&amp;طع</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>إزالة من مدير الملفات</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>إضافة إلى مدير الملفات</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>تعذّر تحديث مدخلات مدير الملفات: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>قص الفيديو واقتصاصه وتدويره بدقة الإطار الواحد.

برنامج حر برخصة GNU العمومية العامة، الإصدار 3 أو ما بعده.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>تراجع عن بداية القص</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>إعادة بداية القص</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>تراجع عن نهاية القص</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>إعادة نهاية القص</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>تراجع عن الاقتصاص</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>إعادة الاقتصاص</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>تراجع عن إزالة الاقتصاص</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>إعادة إزالة الاقتصاص</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>تراجع عن التدوير</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>إعادة التدوير</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>تراجع عن الكتم</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>إعادة الكتم</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>تراجع عن إلغاء الكتم</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>إعادة إلغاء الكتم</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>إعادة فتح آخر تحرير</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>عرض آخر تصدير</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>تراجع</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>إعادة</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>الانتقال إلى وقت…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>بداية النطاق، ثم بداية الفيديو</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>نهاية النطاق، ثم نهاية الفيديو</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>ثانية إلى الخلف</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>ثانية إلى الأمام</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;تحرير</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>ا&amp;نتقال</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>م&amp;ساعدة</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>المجلد «%1» لم يعد موجودًا.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>لا يوجد مدير ملفات لعرض المجلد «%1».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>يُفتح %1 فيديو على الأكثر في المرة الواحدة.</translation>
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
        <translation>الاستخدام: brisklet [VIDEO...]
قص الفيديو. يُفتح كل VIDEO في نافذة خاصة به.

  --install-quick-action  إضافة «قص الفيديو» إلى قوائم مديري الملفات والخروج
  --help                  عرض هذه المساعدة والخروج
  --version               عرض الإصدار والخروج
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>منطقة الإفلات</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>المحرّر</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>الفتح مجددًا</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>تصدير %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>خيارات التصدير</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>استعادة الإعدادات المبدئية</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>الصيغة</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>الدقة</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>تشغيل</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>إلغاء كتم الصوت (وإلا حُذف الصوت عند التصدير)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>كتم الصوت</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>تدوير لليسار</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>إزالة الاقتصاص</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>اقتصاص</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>نحو %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>تشغيل أو إيقاف مؤقت</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>كتم الصوت أو إلغاء كتمه</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>اقتصاص أو إزالة الاقتصاص</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>منطقة الاقتصاص</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 عند %3، %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>نقل منطقة الاقتصاص</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>تحريك جانبها الأيمن أو السفلي</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>تحريك جانبها الأيسر أو العلوي</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>الاقتصاص بالفأرة</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>السحب داخلها</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>سحب مقبض</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>تغيير حجم منطقة الاقتصاص</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc أثناء السحب</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>إلغاء السحب</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>منطقة الاقتصاص، بالمفتاح Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>مفاتيح الأسهم</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift مع هذه المفاتيح</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>عشرة أضعاف المسافة</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>برنامج Brisklet يعمل بالفعل، لكنه لا يستجيب.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>عرض</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>استغرق الخادم وقتًا أطول من اللازم.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>العنوان «%1» غير آمن.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>يحيل الخادم إلى «%1»، وهو عنوان غير آمن.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>يرسل الخادم أكثر مما ينبغي.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>لا يمكن حفظ التنزيل: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>الاتصال بـ «%1» غير آمن: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>أفلت فيديو هنا</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>فتح فيديو…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>مقصوص</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>لا يحتوي «%1» على مسار فيديو.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>تعذّر فتح «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>تعذّرت إعادة فتح «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>لم يعد بالإمكان عرض «%1»: توقّف فك ترميزه على نحو غير متوقع. لم تُفقد التعديلات.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>حدث خطأ ما</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>حسنًا</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>إلغاء</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>مفتاح السهم السفلي يفتح قائمة بالصيغ والدقات</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>زر التصدير، بالمفتاح Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>اختيار الصيغة والدقة</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>فيلم MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>فيلم QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>فشل التصدير: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>اكتمل التصدير</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>فشل التصدير</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>يجري تصدير فيديو.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>يجري التصدير…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>التصدير</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>تقدّم التصدير</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>إلغاء</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>بقي نحو %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>الأصلية</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>قص الفيديو</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>فتح ملفات الفيديو المحددة في Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>تعذّرت كتابة «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>تعذّرت إزالة «%1»: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>الملف «%1» ليس على هذا الحاسوب، ولا يؤدي إليه أي مجلد هنا.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>الانتقال إلى وقت</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>انتقال إلى:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>انتقال</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>هذا ليس وقتًا. اكتب مثلًا ‎1:23.456 أو ‎+10f أو ‎#2412‎.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>ينتهي الفيديو عند %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>أرقام إطارات هذا الفيديو غير معروفة. اكتب وقتًا.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>الإطار الأخير هو ‎#%1‎.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>وقت، أو عدد إطارات من هنا، أو رقم إطار: ‎1:23.456،‏ ‎+10f،‏ ‎#2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>وقت، أو عدد إطارات من هنا: ‎1:23.456،‏ ‎+10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>اكتب ‎+%1f للانتقال بهذا العدد من الإطارات، أو ‎#%1 للإطار الذي يحمل هذا الرقم.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>يبدأ الفيديو عند %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>اختصارات لوحة المفاتيح</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>الإجراء</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>المفاتيح أو الإيماءة</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>عناصر التحكم</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>السرعة 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>السرعة 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>تعذّر العثور على الخادم «%1».</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>يرفض الخادم «%1» الاتصال.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>انقطع الاتصال بـ «%1».</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>يحيل الخادم «%1» من عنوان إلى آخر بلا نهاية.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>يجيب الخادم «%1» بخطأ (الحالة %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>فشل الاتصال بـ «%1» (التفاصيل: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>شهادته تخص خادمًا آخر</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>شهادته منتهية الصلاحية أو لم تصبح صالحة بعد</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>شهادته غير موثوق بها</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>تعذّر التحقق من شهادته (التفاصيل: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>تعذّر إنشاء «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>تعذّرت كتابة «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>تعذّر نسخ «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>تعذّرت إزالة «%1»: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>غير موجود.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>تعذّر تحديد مكان البرنامج.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>بداية القص</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>رأس التشغيل</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>نهاية القص</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>إطار إلى الخلف</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>إطار إلى الأمام</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>ثانية إلى الخلف</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>ثانية إلى الأمام</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>إلى الخلف قدر الإمكان</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>إلى الأمام قدر الإمكان</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift مع هذه المفاتيح</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>عشرة أضعاف المسافة</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>الخط الزمني بالفأرة</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>النقر أو السحب</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>نقل رأس التشغيل</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>سحب مقبض</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>نقل بداية القص أو نهايته</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc أثناء السحب</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>إلغاء السحب</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>بداية القص ورأس التشغيل ونهاية القص، بالمفتاح Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>يجري إنشاء شريط اللقطات…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>السحب مع Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>التحرك عُشر مسافة المؤشر</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>السحب مع Shift، بعيدًا إلى أعلى أو أسفل</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>التحرك جزءًا من مئة من مسافته</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>العجلة</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>التحرك إطارًا واحدًا</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>العجلة مع Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>التحرك عشرة إطارات</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>العجلة فوق مقبض</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>تحريك ذلك الطرف من النطاق</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>الخط الزمني</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>النطاق %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>التحديثات</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>أتريد التحقق من وجود تحديثات تلقائيًا؟</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>يمكن لبرنامج Brisklet أن يتحقق مرة في اليوم من وجود إصدار جديد. ويمكنك أيضًا التحقق من قائمته.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>يجري التحقق من وجود تحديثات…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>لديك أحدث إصدار.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>الإصدار %1 من Brisklet هو أحدث إصدار متاح.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>تحديث</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>تثبيت التحديث</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>تذكيري لاحقًا</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>تخطي هذا الإصدار</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>يتوفر إصدار جديد من Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>يتوفر Brisklet %1، ولديك %2. أتريد تثبيت الإصدار الجديد؟</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>يجري تنزيل Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>لم ينجح التحديث.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>قائمة التحديثات تالفة.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>تعذّر التحقق من وجود تحديثات: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>التحديث كبير جدًا.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>تعذّر تنزيل التحديث: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>التحديث غير مكتمل. لم يُثبّت.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>التحديث غير أصيل: توقيعه غير صحيح. لم يُثبّت.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>لا يوجد برنامج لتثبيت التحديث. تجد التحديث هنا: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>إيقاف التصدير والإغلاق؟</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>إيقاف وإغلاق</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>متابعة التصدير</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>إيقاف %n عملية تصدير والإغلاق؟</numerusform>
            <numerusform>إيقاف %n عملية تصدير والإغلاق؟</numerusform>
            <numerusform>إيقاف عمليتي التصدير (%n) والإغلاق؟</numerusform>
            <numerusform>إيقاف %n عمليات تصدير والإغلاق؟</numerusform>
            <numerusform>إيقاف %n عملية تصدير والإغلاق؟</numerusform>
            <numerusform>إيقاف %n عملية تصدير والإغلاق؟</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1 ث</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 د</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 س</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>الخيار %1 غير معروف</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>الخيار %1 لا يأخذ قيمة</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>الخيار %1 يتطلب قيمة</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>الخيار %1 مذكور مرتين</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>الخيار %1 يتطلب عددًا، لا «%2»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>الخيار %1 يتطلب عددًا صحيحًا، لا «%2»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>هناك شيء ناقص: المتوقع %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>معامل غير متوقع «%1»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>أحد الأسماء فارغ</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>الخيار --count يتطلب عددًا من 1 إلى %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>المعامل SECONDS يتطلب عددًا من 0 فأكثر، لا «%1»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>الخيار --crop يتطلب X,Y,W,H، لا «%1»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>الخيار --crop يتطلب كسورًا من الصورة، من 0 إلى 1، تشكّل مساحة</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>الخيار --format يعرف %1، لا «%2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> و </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>اسم ملف الخرج لا يدل على الصيغة: أضف --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> أو </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>الخيار %1 لا يعرف «%2»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>يجب ألا يكون --start سالبًا</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>يجب أن يأتي --end بعد --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>الخيار --max-short-edge يتطلب عددًا من البكسلات</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>الخيار --progress لا يعرف إلا json، لا «%1»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>لم يُعطَ أي أمر</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>ليس «%1» أمرًا</translation>
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
        <translation>الاستخدام: brisklet-cli probe SOURCE
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
        <translation>probe      يعرض معلومات الملف في كائن JSON واحد.
filmstrip  يكتب N (12) لقطة صغيرة من منتصف N شريحة متساوية في المجلد
           بالأسماء 00.png و 01.png وهكذا، ويعرض أوقاتها بصيغة JSON.
frame      يكتب الصورة المعتدلة التي يعرضها المشغّل عند ذلك الوقت.
export     يكتب نسخة من الملف:
  --start, --end        الجزء المراد إبقاؤه، بالثواني (كله)
  --crop                بكسور من الصورة كما تُعرض بعد --rotate،
                        من زاويتها العليا اليسرى
  --rotate              أرباع دورات باتجاه عقارب الساعة، بالدرجات
  --mute                حذف الصوت
  --max-short-edge      التصغير إلى هذا العدد من البكسلات للضلع الأقصر
  --format              %1 (ما ينتهي به اسم ملف الخرج)
  --progress json       سطر JSON لكل تقرير بدلًا من شريط التقدم
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        إعدادات مرمّز غير إعدادات البرنامج، لأغراض القياس

  --help, --version     عرض هذه المساعدة أو الإصدار، ثم الخروج

حالة الخروج: 0 تم؛ 1 فشل؛ 2 استخدام خاطئ؛ 130 قوطع.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>فشل التصدير: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>تعذّرت كتابة «%1»: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>تعذّر فتح «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>تعذّرت كتابة الجواب: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>لا يحتوي «%1» على مسار فيديو.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>تعذّرت كتابة الصورة بصيغة PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>تعذّر إنشاء المجلد «%1»: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>ليس له مدة.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>تعذّر إنشاء شريط لقطات من «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>تعذّر إنشاء الصورة: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>تعذّرت الإضافة إلى مديري الملفات: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>أُضيف «قص الفيديو» إلى قوائم مديري الملفات</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>الخيار «%1» غير معروف</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>ليس ملف فيديو، أو أنه تالف.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>صيغته غير مدعومة.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>ترميز الفيديو فيه غير مدعوم.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>الملف مشفّر أو محمي من النسخ.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>الملف غير موجود.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>ليس لديك إذن بقراءة هذا الملف.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>اسم الملف طويل جدًا.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>الوصلة إلى الملف لا تؤدي إلى شيء.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>ليس ملفًا عاديًا.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>إنه مجلد، لا ملف فيديو.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>الملف فارغ.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>لا يمكن قراءة الملف: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>لا يمكن قراءة الفيديو: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>تغيّر الملف «%1» بعد فتحه.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>ينتهي الملف قبل أوانه.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>بُتر الفيديو أثناء قراءته.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>أبلغ القرص عن خطأ أثناء قراءة الفيديو.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>لا يحتوي الملف على مسار فيديو.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>لا يمكن فك ترميز أي صورة في هذا الملف.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>لا توجد صورة عند هذا الوقت.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>لا يمكن تحويل الصور ذات صيغة البكسل «%1».</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>لا يمكن تحويل ألوان الصور.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>لا يمكن تحويل ألوان الصورة.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>تعذّر فتح «%1»: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>النطاق المراد تصديره فارغ.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>لا يحتوي الملف المصدر على مسار فيديو.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>تعذّر التحضير لتصدير هذا الفيديو.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>لا يوجد فيديو لتصديره.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>لا يمكن تصدير الفيديو فوق نفسه.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>لا يمكن فك ترميز أي صورة في هذا النطاق.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>تلف الملف الجديد أثناء كتابته.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>أحد المرمّزات التي يحتاجها التصدير غير مثبّت.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>المرمّز %1 لا يقبل الإعداد «%2».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>تجري كتابة «%1» في عملية تصدير أخرى.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>أزال برنامج آخر الملف الجديد قبل اكتماله.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>المجلد «%1» المخصص للملف الجديد غير موجود.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>ليس لديك إذن بالكتابة في المجلد «%1».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>القرص الذي فيه المجلد «%1» محمي من الكتابة.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>يوجد مجلد باسم الملف الجديد.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>يوجد شيء ليس ملفًا عاديًا باسم الملف الجديد.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>اسم الملف الجديد طويل جدًا.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>أبلغ القرص عن خطأ أثناء كتابة الملف الجديد.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>لا يمكن كتابة الملف الجديد: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>لا توجد ذاكرة كافية.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>لا توجد مساحة كافية على القرص.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>سيكون الملف أكبر مما يسعه هذا القرص.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>أبلغ القرص عن خطأ.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>لا يمكن العثور على محرك الوسائط: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>لم يُثبَّت Brisklet كاملًا. أعد تثبيته.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>حُدِّث Brisklet. شغّله من جديد.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>الإذن مرفوض</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>العملية غير مسموح بها</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>لا يوجد ملف أو مجلد كهذا</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>ليس مجلدًا</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>الملف موجود بالفعل</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>هو مجلد</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>معامل غير صالح</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>ملفات مفتوحة أكثر من اللازم</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>نظام الملفات للقراءة فقط</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>لم يعد الملف على قرص الشبكة</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>انتهت مهلة الاتصال</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>الجهاز أو المورد مشغول</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>مستويات كثيرة جدًا من الوصلات الرمزية</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>انتهى البرنامج القارئ</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>لم تبق مساحة على الجهاز</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>تجاوزت الحصة المسموحة من القرص</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>خطأ في القراءة أو الكتابة</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>اسم الملف طويل جدًا</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>خطأ عام في مكتبة خارجية</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>لم يُنجز هذا في FFmpeg بعد</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>خطأ غير متوقع (التفاصيل: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>المجلد «%1» ليس موجودًا.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>يحمل ملف آخر اسمه الآن.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>لم يعد في المجلد «%1».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>لا توجد مساحة حرة كافية: يحتاج الفيديو إلى نحو %1، والمتاح %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>النظام مشغول جدًا: لا يمكنه بدء خيط آخر.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>توقّف فك ترميز الفيديو على نحو غير متوقع.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>توقّف ترميز الفيديو على نحو غير متوقع. لم يبقَ أي شيء من الملف الجديد.</translation>
    </message>
</context>
</TS>
