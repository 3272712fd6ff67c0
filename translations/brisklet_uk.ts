<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="uk" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Воно вже завантажується.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Не вдається зберегти оновлення: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Обрізання відео</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Обрізання, кадрування та поворот відео з точністю до кадру</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>вирізати;обрізати;вкоротити;кадрувати;повернути;кліп;відео;фільм;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Нове вікно</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Обрізання, кадрування та поворот відео</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet робить одне: коротшу, кадровану або повернуту копію відео. Перетягніть файл у вікно, пересуньте дві ручки над стрічкою кадрів, експортуйте.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Перший кадр експорту — той, який ви бачили на початку фрагмента, а звук лишається там, де був.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Кадрує й повертає за один крок, з однією ретельною передискретизацією.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Зберігає кольори, розширений динамічний діапазон, звукові доріжки, розділи та дати.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Записує MP4 і MOV; читає те, що пишуть камери, телефони та програми запису екрана.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Ніколи не змінює оригінал і не залишає недописаних файлів.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Відео (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Експорт</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Відкриття</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Усі файли (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>«%1» — це відео, яке зараз редагується. Виберіть іншу назву.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Так</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ні</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Закрити</translation>
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
        <translation>Пробіл</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Ліворуч</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Праворуч</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вгору</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Вниз</translation>
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
        <translation>Про Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Перевірити оновлення…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Вийти</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Нове вікно</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Відкрити відео…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Експортувати…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Закрити відео</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Встановити початок обрізання за позначкою</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Встановити кінець обрізання за позначкою</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Попередній кадр</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Наступний кадр</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Повторювати відтворення</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Файл</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Кліп</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Вилучити з файлових менеджерів</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Додати до файлових менеджерів</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Не вдалося змінити меню файлових менеджерів: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Обрізає, кадрує та повертає відео з точністю до кадру.

Вільне програмне забезпечення на умовах GNU General Public License версії 3 або новішої.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Скасувати початок обрізання</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Повторити початок обрізання</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Скасувати кінець обрізання</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Повторити кінець обрізання</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Скасувати кадрування</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Повторити кадрування</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Скасувати вилучення кадрування</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Повторити вилучення кадрування</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Скасувати поворот</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Повторити поворот</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Скасувати вимкнення звуку</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Повторити вимкнення звуку</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Скасувати ввімкнення звуку</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Повторити ввімкнення звуку</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Клавіатурні скорочення</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Знову відкрити останню правку</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Показати останній експорт</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторити</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Перейти до часу…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Початок фрагмента, потім початок відео</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Кінець фрагмента, потім кінець відео</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>На секунду назад</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>На секунду вперед</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Зміни</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Перехід</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Довідка</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Теки «%1» більше немає.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Немає файлового менеджера, який міг би показати теку «%1».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>За один раз відкривається не більше стількох відео: %1.</translation>
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
        <translation>Виклик: brisklet [VIDEO...]
Обрізає відео. Кожне VIDEO відкривається в окремому вікні.

  --install-quick-action  додати «Обрізати відео» до файлових менеджерів, вийти
  --help                  показати цю довідку й вийти
  --version               показати версію й вийти
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Область перетягування</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Відкрити знову</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Експорт %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Параметри експорту</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Відновити типові</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Роздільність</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Призупинити</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Відтворити</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Увімкнути звук (інакше його буде вилучено під час експорту)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Вимкнути звук</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернути ліворуч</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Вилучити кадрування</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Кадрувати</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>близько %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Відтворити або призупинити</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Вимкнути або ввімкнути звук</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Кадрувати або вилучити кадрування</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Рамка кадрування</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 у точці %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Пересунути рамку</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Пересунути її праву або нижню сторону</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Пересунути її ліву або верхню сторону</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Рамка кадрування, мишею</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Перетягнути всередині неї</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Перетягнути ручку</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Змінити розмір рамки</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc під час перетягування</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Скасувати перетягування</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Рамка кадрування, перехід за Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Клавіші зі стрілками</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift із цими клавішами</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Удесятеро далі</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet уже працює, але не відповідає.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Показати</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Сервер надто довго не відповідав.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>«%1» — незахищена адреса.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Сервер переспрямовує на «%1», а це незахищена адреса.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Сервер надсилає більше даних, ніж мав би.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Не вдається зберегти завантажене: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>З’єднання з «%1» не захищено: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Перетягніть відео сюди</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Відкрити відео…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>обрізано</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» не містить відеодоріжки.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Не вдалося відкрити «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не вдалося знову відкрити «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Відео «%1» більше не можна показати: його декодер неочікувано завершив роботу. Правку не втрачено.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Щось пішло не так</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Гаразд</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Скасувати</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Клавіша «Вниз» відкриває меню форматів і роздільностей</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Кнопка експорту, перехід за Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Вибрати формат і роздільність</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Відео MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Відео QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Не вдалося експортувати: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Експорт завершено</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Експорт не вдався</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Триває експорт відео.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Експортування…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Експорт</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Поступ експорту</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Скасувати</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>залишилося близько %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Початкова</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Обрізати відео</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Відкрити вибрані відео у Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Не вдалося записати «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Не вдалося вилучити «%1»: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>«%1» немає на цьому комп’ютері, і жодна тека тут до нього не веде.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Перехід до часу</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Перейти до:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Це не час. Введіть, наприклад, 1:23.456, +10f або #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Відео закінчується на %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Номери кадрів цього відео невідомі. Введіть час.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Останній кадр — #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Час, зсув у кадрах або номер кадру: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Час або зсув у кадрах: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Введіть +%1f, щоб зсунутися на стільки кадрів, або #%1 для кадру з цим номером.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Відео починається на %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Клавіатурні скорочення</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Дія</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Клавіші або жест</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Керування</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>Швидкість 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>Швидкість 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Не вдалося знайти сервер «%1».</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Сервер «%1» не приймає з’єднання.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>З’єднання з «%1» перервано.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Сервер «%1» переспрямовує без кінця.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Сервер «%1» відповів помилкою (код %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Не вдалося з’єднатися з «%1» (подробиці: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>сертифікат належить іншому серверу</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>строк дії сертифіката минув або ще не почався</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>сертифікат не є довіреним</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>не вдалося перевірити сертифікат (подробиці: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Не вдалося створити «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Не вдалося записати «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Не вдалося скопіювати «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Не вдалося вилучити «%1»: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Не існує.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Не вдалося визначити розташування програми.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Початок обрізання</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Позначка відтворення</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Кінець обрізання</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>На кадр назад</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>На кадр вперед</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>На секунду назад</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>На секунду вперед</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Якомога далі назад</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Якомога далі вперед</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift із цими клавішами</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Удесятеро далі</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Шкала часу, мишею</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Клацнути або перетягнути</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Пересунути позначку відтворення</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Перетягнути ручку</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Пересунути початок або кінець обрізання</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc під час перетягування</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Скасувати перетягування</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Початок обрізання, позначка відтворення та кінець обрізання, перехід за Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Створення стрічки кадрів…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Перетягнути із Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Зсув удесятеро менший, ніж у вказівника</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Перетягнути із Shift значно вище або нижче</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Зсув у сто разів менший</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Коліщатко</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Крок на один кадр</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Коліщатко із Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Крок на десять кадрів</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Коліщатко над ручкою</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Крок цього краю фрагмента</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Шкала часу</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Фрагмент %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Перевіряти оновлення автоматично?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet може раз на день перевіряти, чи є нова версія. Перевірити можна й самостійно, з меню програми.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Перевірка оновлень…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>У вас найновіша версія.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 — найновіша з доступних версій.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Оновлення</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Встановити оновлення</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Нагадати пізніше</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустити цю версію</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Доступна нова версія Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Вийшла версія Brisklet %1; у вас встановлено %2. Встановити нову?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Завантаження Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Не вдалося виконати оновлення.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Список оновлень пошкоджено.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Не вдалося перевірити оновлення: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Оновлення завелике.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Не вдалося завантажити оновлення: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Оновлення неповне. Його не встановлено.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Оновлення несправжнє: його підпис неправильний. Його не встановлено.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Немає програми, яка могла б встановити оновлення. Воно тут: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Зупинити експорт і закрити?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Зупинити й закрити</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Продовжити експорт</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Зупинити %n експорт і закрити?</numerusform>
            <numerusform>Зупинити %n експорти й закрити?</numerusform>
            <numerusform>Зупинити %n експортів і закрити?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1 с</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 хв</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 год</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>невідомий параметр %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 не приймає значення</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 потребує значення</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 вказано двічі</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 потребує числа, а не «%2»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 потребує цілого числа, а не «%2»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>чогось бракує: очікується %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>зайвий аргумент «%1»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>порожня назва</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count потребує числа від 1 до %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS потребує числа від 0, а не «%1»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop потребує X,Y,W,H, а не «%1»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop потребує часток кадру від 0 до 1, що утворюють непорожню область</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format приймає %1, але не «%2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> і </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>з назви вихідного файла не зрозуміти формат: додайте --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> або </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>для %1 немає «%2»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start не може бути від’ємним</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end має бути більшим за --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge потребує кількості пікселів</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress приймає лише json, а не «%1»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>не вказано команди</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>«%1» — не команда</translation>
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
        <translation>Виклик: brisklet-cli probe SOURCE
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
        <translation>probe      виводить відомості про файл як один об’єкт JSON.
filmstrip  записує N (12) мініатюр із середин N рівних відрізків до каталогу
           з назвами 00.png, 01.png, ... і виводить їхній час як JSON.
frame      записує кадр цього часу таким, яким його показує програвач.
export     записує копію файла:
  --start, --end        частина, що лишається, у секундах (усе відео)
  --crop                у частках кадру, яким його видно після --rotate,
                        від його лівого верхнього кута
  --rotate              поворот чвертями за годинниковою стрілкою, у градусах
  --mute                прибирає звук
  --max-short-edge      зменшує коротшу сторону до цієї кількості пікселів
  --format              %1 (за закінченням назви вихідного файла)
  --progress json       виводить рядок JSON на кожен звіт замість смужки
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        інші параметри кодувальника, для вимірювань

  --help, --version     вивести цю довідку або версію й вийти

Код завершення: 0 — готово; 1 — збій; 2 — хибний виклик; 130 — перервано.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Не вдалося експортувати: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Не вдалося записати «%1»: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не вдалося відкрити «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Не вдалося вивести відповідь: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» не містить відеодоріжки.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Не вдалося записати зображення у форматі PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Не вдалося створити теку «%1»: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Воно не має тривалості.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Не вдалося створити стрічку кадрів із «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Не вдалося створити зображення: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Не вдалося додати до меню файлових менеджерів: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>«Обрізати відео» додано до файлових менеджерів</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>невідомий параметр «%1»</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Це не відеофайл, або його пошкоджено.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Його формат не підтримується.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Його відеокодек не підтримується.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Файл зашифровано або захищено від копіювання.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Файла не існує.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>У вас немає прав на читання цього файла.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Назва файла задовга.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Посилання на файл нікуди не веде.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Це не звичайний файл.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Це тека, а не відеофайл.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл порожній.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Не вдається прочитати файл: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Не вдається прочитати відео: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>Файл «%1» було змінено після відкриття.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Файл обривається завчасно.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Відео було вкорочено під час читання.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Диск повідомив про помилку під час читання відео.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Файл не містить відеодоріжки.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>У цьому файлі немає жодного кадру, який вдається декодувати.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>У цей момент часу кадру немає.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Кадри у форматі пікселів «%1» неможливо перетворити.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Кольори кадрів неможливо перетворити.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Кольори кадру неможливо перетворити.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не вдалося відкрити «%1»: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Фрагмент для експорту порожній.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Початковий файл не містить відеодоріжки.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Не вдалося підготувати експорт цього відео.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Немає відео для експорту.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Неможливо експортувати відео поверх нього самого.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>У фрагменті немає жодного кадру, який вдається декодувати.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Новий файл було пошкоджено під час запису.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Не встановлено кодувальник, потрібний для експорту.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Кодувальник %1 не приймає параметр «%2».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>У «%1» зараз записує інший експорт.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Незавершений новий файл вилучила інша програма.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Тека «%1» для нового файла не існує.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>У вас немає прав на запис до теки «%1».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Диск із текою «%1» захищено від запису.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Назву нового файла вже має тека.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Назву нового файла вже має об’єкт, який не є звичайним файлом.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Назва нового файла задовга.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Диск повідомив про помилку під час запису нового файла.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Не вдається записати новий файл: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Недостатньо пам’яті.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Недостатньо місця на диску.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Файл був би завеликим для цього диска.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Диск повідомив про помилку.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Не вдається знайти компонент обробки відео: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet встановлено не повністю. Встановіть його знову.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet було оновлено. Запустіть його знову.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>Відмовлено в доступі</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Дію заборонено</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Немає такого файла або каталогу</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Не є каталогом</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Файл уже існує</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Є каталогом</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Некоректний аргумент</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Забагато відкритих файлів</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Файлова система лише для читання</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Файла вже немає на мережевому диску</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Час очікування з’єднання вичерпано</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Пристрій або ресурс зайнято</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Забагато рівнів символічних посилань</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Програма-читач завершилася</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>На пристрої не лишилося місця</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Перевищено дискову квоту</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Помилка введення-виведення</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Назва файла задовга</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Загальна помилка зовнішньої бібліотеки</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>Ще не реалізовано у FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>Неочікувана помилка (подробиці: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Теки «%1» немає на місці.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Його назву тепер має інший файл.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Його більше немає в теці «%1».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Недостатньо вільного місця: відео займе близько %1, а вільно %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Система перевантажена: неможливо запустити ще один потік.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Декодер відео неочікувано завершив роботу.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Кодувальник відео неочікувано завершив роботу. Від нового файла нічого не лишилося.</translation>
    </message>
</context>
</TS>
