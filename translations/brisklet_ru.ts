<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Оно уже загружается.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Не удаётся сохранить обновление: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Обрезка видео</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Обрезка, кадрирование и поворот видео с точностью до кадра</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>вырезать;обрезать;укоротить;кадрировать;повернуть;клип;видео;фильм;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Новое окно</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Обрезка, кадрирование и поворот видео</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet делает одно: укороченную, кадрированную или повёрнутую копию видео. Перетащите файл в окно, сдвиньте два маркера над лентой кадров и экспортируйте.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Первый кадр экспорта — тот, который вы видели в начале фрагмента, а звук остаётся на своём месте.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Кадрирует и поворачивает за один шаг, с одной аккуратной передискретизацией.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Сохраняет цвета, расширенный динамический диапазон, звуковые дорожки, главы и даты.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Записывает MP4 и MOV; читает то, что пишут камеры, телефоны и программы записи экрана.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Никогда не трогает оригинал и не оставляет недописанных файлов.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Видео (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Открыть</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Все файлы (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>«%1» — это видео, которое сейчас редактируется. Выберите другое имя.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Да</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Нет</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Закрыть</translation>
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
        <translation>Пробел</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Влево</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Вправо</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Вверх</translation>
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
        <translation>О программе Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Проверить обновления…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Завершить</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Новое окно</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Открыть видео…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Экспортировать…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Закрыть видео</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Установить начало обрезки по указателю</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Установить конец обрезки по указателю</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Предыдущий кадр</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Следующий кадр</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Повторять воспроизведение</translation>
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
        <translation>&amp;Клип</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Удалить из файловых менеджеров</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Добавить в файловые менеджеры</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Не удалось изменить меню файловых менеджеров: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Обрезает, кадрирует и поворачивает видео с точностью до кадра.

Свободное ПО на условиях GNU General Public License версии 3 или более поздней.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Отменить начало обрезки</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Повторить начало обрезки</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Отменить конец обрезки</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Повторить конец обрезки</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Отменить кадрирование</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Повторить кадрирование</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Отменить удаление кадрирования</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Повторить удаление кадрирования</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Отменить поворот</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Повторить поворот</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Отменить выключение звука</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Повторить выключение звука</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Отменить включение звука</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Повторить включение звука</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Снова открыть последнюю правку</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Показать последний экспорт</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Отменить</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Повторить</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Перейти ко времени…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Начало фрагмента, затем начало видео</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Конец фрагмента, затем конец видео</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>На секунду назад</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>На секунду вперёд</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Правка</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>Пере&amp;ход</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Справка</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Папки «%1» больше нет.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Нет файлового менеджера, который мог бы показать папку «%1».</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>За один раз открывается не больше стольких видео: %1.</translation>
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
        <translation>Вызов: brisklet [VIDEO...]
Обрезает видео. Каждое VIDEO открывается в отдельном окне.

  --install-quick-action  внести «Обрезать видео» в файловые менеджеры и выйти
  --help                  показать эту справку и выйти
  --version               показать версию и выйти
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Область перетаскивания</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Редактор</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Открыть снова</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Экспорт %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Параметры экспорта</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Сбросить настройки</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Формат</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Разрешение</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Приостановить</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Воспроизвести</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Включить звук (иначе он будет удалён при экспорте)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Выключить звук</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Повернуть влево</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Удалить кадрирование</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Кадрировать</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>около %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Воспроизвести или приостановить</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Выключить или включить звук</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Кадрировать или удалить кадрирование</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Рамка кадрирования</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 в точке %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Переместить рамку</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Сдвинуть её правую или нижнюю сторону</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Сдвинуть её левую или верхнюю сторону</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Рамка кадрирования, мышью</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Перетащить внутри неё</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Перетащить маркер</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Изменить размер рамки</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc при перетаскивании</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Отменить перетаскивание</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Рамка кадрирования, переход по Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Клавиши со стрелками</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift с этими клавишами</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>В десять раз дальше</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet уже запущен, но не отвечает.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Показать</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Сервер слишком долго не отвечал.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>«%1» — небезопасный адрес.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Сервер перенаправляет на «%1», а это небезопасный адрес.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Сервер передаёт больше данных, чем должен.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Не удаётся сохранить загруженное: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>Соединение с «%1» небезопасно: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Перетащите видео сюда</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Открыть видео…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>обрезано</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» не содержит видеодорожки.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Не удалось открыть «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не удалось снова открыть «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Видео «%1» больше нельзя показать: его декодер неожиданно завершил работу. Правка не потеряна.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Что-то пошло не так</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>ОК</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Отмена</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Клавиша «Вниз» открывает меню форматов и разрешений</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Кнопка экспорта, переход по Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Выбрать формат и разрешение</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Видео MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Видео QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Не удалось экспортировать: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Экспорт завершён</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Экспорт не удался</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Экспортируется видео.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Экспортируется…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Экспорт</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Ход экспорта</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Отмена</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>осталось около %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Исходное</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Обрезать видео</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Открыть выбранные видео в Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Не удалось записать «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Не удалось удалить «%1»: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>«%1» находится не на этом компьютере, и ни одна папка здесь к нему не ведёт.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Переход ко времени</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Перейти к:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Перейти</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Это не время. Введите, например, 1:23.456, +10f или #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Видео заканчивается на %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Номера кадров этого видео неизвестны. Введите время.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Последний кадр — #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Время, смещение в кадрах или номер кадра: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Время или смещение в кадрах: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Введите +%1f, чтобы сместиться на столько кадров, или #%1 для кадра с этим номером.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Видео начинается на %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Комбинации клавиш</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Действие</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Клавиши или жест</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Управление</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>Скорость 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>Скорость 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Не удалось найти сервер «%1».</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Сервер «%1» не принимает соединение.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Соединение с «%1» прервано.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Сервер «%1» перенаправляет без конца.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Сервер «%1» ответил ошибкой (код %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Не удалось соединиться с «%1» (подробности: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>сертификат выдан другому серверу</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>срок действия сертификата истёк или ещё не начался</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>сертификат не является доверенным</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>не удалось проверить сертификат (подробности: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Не удалось создать «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Не удалось записать «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Не удалось скопировать «%1»: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Не удалось удалить «%1»: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Не существует.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Не удалось определить расположение программы.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Начало обрезки</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Указатель воспроизведения</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Конец обрезки</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>На кадр назад</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>На кадр вперёд</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>На секунду назад</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>На секунду вперёд</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Как можно дальше назад</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Как можно дальше вперёд</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift с этими клавишами</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>В десять раз дальше</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Шкала времени, мышью</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Щёлкнуть или перетащить</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Переместить указатель воспроизведения</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Перетащить маркер</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Переместить начало или конец обрезки</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc при перетаскивании</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Отменить перетаскивание</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Начало обрезки, указатель воспроизведения и конец обрезки, переход по Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Создаётся лента кадров…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Перетащить с Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Сдвиг в десять раз меньше, чем у курсора</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Перетащить с Shift намного выше или ниже</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Сдвиг в сто раз меньше</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Колесо</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Шаг на один кадр</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Колесо с Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Шаг на десять кадров</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Колесо над маркером</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Шаг этого края фрагмента</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Шкала времени</translation>
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
        <translation>Обновления</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Проверять обновления автоматически?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet может раз в день проверять, есть ли новая версия. Проверить можно и вручную, из меню программы.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Проверка обновлений…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Установлена последняя версия.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 — самая новая из доступных версий.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Обновление</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Установить обновление</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Напомнить позже</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Пропустить эту версию</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Доступна новая версия Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Вышла версия Brisklet %1; у вас установлена %2. Установить новую?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Загружается Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Не удалось выполнить обновление.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Список обновлений повреждён.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Не удалось проверить обновления: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Обновление слишком велико.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Не удалось загрузить обновление: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Обновление неполное. Оно не было установлено.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Обновление не подлинное: его подпись неверна. Оно не было установлено.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Нет программы, которая могла бы установить обновление. Оно находится здесь: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Остановить экспорт и закрыть?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Остановить и закрыть</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Продолжить экспорт</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Остановить %n экспорт и закрыть?</numerusform>
            <numerusform>Остановить %n экспорта и закрыть?</numerusform>
            <numerusform>Остановить %n экспортов и закрыть?</numerusform>
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
        <translation>%1 мин</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 ч</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>неизвестный параметр %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 не принимает значения</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 требует значения</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 указан дважды</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 требует числа, а не «%2»</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 требует целого числа, а не «%2»</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>чего-то не хватает: ожидается %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>лишний аргумент «%1»</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>пустое имя</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count требует числа от 1 до %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS требует числа от 0, а не «%1»</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop требует X,Y,W,H, а не «%1»</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop требует долей кадра от 0 до 1, образующих непустую область</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format принимает %1, но не «%2»</translation>
    </message>
    <message>
        <source> and </source>
        <translation> и </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>по имени выходного файла не понять формат: добавьте --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> или </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>для %1 нет «%2»</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start не может быть отрицательным</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end должен быть больше --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge требует числа пикселей</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress принимает только json, а не «%1»</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>команда не указана</translation>
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
        <translation>Вызов: brisklet-cli probe SOURCE
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
        <translation>probe      выводит сведения о файле в виде одного объекта JSON.
filmstrip  записывает N (12) миниатюр из середин N равных отрезков в каталог
           под именами 00.png, 01.png, ... и выводит их время в виде JSON.
frame      записывает кадр этого времени таким, каким его показывает плеер.
export     записывает копию файла:
  --start, --end        сохраняемая часть, в секундах (всё видео)
  --crop                в долях кадра, каким он виден после --rotate,
                        от его левого верхнего угла
  --rotate              поворот четвертями по часовой стрелке, в градусах
  --mute                убирает звук
  --max-short-edge      уменьшает короткую сторону до этого числа пикселей
  --format              %1 (по окончанию имени выходного файла)
  --progress json       выводит строку JSON на каждый отчёт вместо полосы
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        другие настройки кодировщика, для измерений

  --help, --version     вывести эту справку или версию и выйти

Код завершения: 0 — готово; 1 — сбой; 2 — неверный вызов; 130 — прервано.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Не удалось экспортировать: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Не удалось записать «%1»: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не удалось открыть «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Не удалось вывести ответ: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>«%1» не содержит видеодорожки.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Не удалось записать изображение в формате PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Не удалось создать папку «%1»: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>У него нет длительности.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Не удалось создать ленту кадров из «%1»: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Не удалось создать изображение: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Не удалось добавить в меню файловых менеджеров: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>«Обрезать видео» добавлено в файловые менеджеры</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>неизвестный параметр «%1»</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Это не видеофайл, или он повреждён.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Его формат не поддерживается.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Его видеокодек не поддерживается.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Файл зашифрован или защищён от копирования.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Файл не существует.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>У вас нет прав на чтение этого файла.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Слишком длинное имя файла.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Ссылка на файл никуда не ведёт.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Это не обычный файл.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Это папка, а не видеофайл.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Файл пуст.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Не удаётся прочитать файл: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Не удаётся прочитать видео: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>Файл «%1» был изменён после открытия.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Файл обрывается раньше времени.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Видео было укорочено во время чтения.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Диск сообщил об ошибке при чтении видео.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Файл не содержит видеодорожки.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>В этом файле нет ни одного кадра, который удаётся декодировать.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>В этот момент времени кадра нет.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Кадры в формате пикселей «%1» невозможно преобразовать.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Цвета кадров невозможно преобразовать.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Цвета кадра невозможно преобразовать.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Не удалось открыть «%1»: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Фрагмент для экспорта пуст.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Исходный файл не содержит видеодорожки.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Не удалось подготовить экспорт этого видео.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Нет видео для экспорта.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Нельзя экспортировать видео поверх него самого.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Во фрагменте нет ни одного кадра, который удаётся декодировать.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Новый файл был повреждён при записи.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Не установлен кодировщик, необходимый для экспорта.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Кодировщик %1 не принимает параметр «%2».</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>В «%1» сейчас записывает другой экспорт.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Незавершённый новый файл удалён другой программой.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Папка «%1» для нового файла не существует.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>У вас нет прав на запись в папку «%1».</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Диск с папкой «%1» защищён от записи.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Имя нового файла занято папкой.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Имя нового файла занято объектом, который не является обычным файлом.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Слишком длинное имя нового файла.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Диск сообщил об ошибке при записи нового файла.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Не удаётся записать новый файл: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Недостаточно памяти.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Недостаточно места на диске.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Файл был бы слишком велик для этого диска.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Диск сообщил об ошибке.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Не удаётся найти компонент обработки видео: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet установлен не полностью. Установите его заново.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Программа Brisklet обновлена. Запустите её снова.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>Отказано в доступе</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Операция не разрешена</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Нет такого файла или каталога</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Это не каталог</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Файл существует</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Это каталог</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Недопустимый аргумент</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Слишком много открытых файлов</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Файловая система только для чтения</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Файла больше нет на сетевом диске</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Время ожидания соединения истекло</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Устройство или ресурс занято</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Слишком много уровней символьных ссылок</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Читающая программа завершена</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>На устройстве не осталось места</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Превышена дисковая квота</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Ошибка ввода-вывода</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Слишком длинное имя файла</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Общая ошибка внешней библиотеки</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>Ещё не реализовано в FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>Непредвиденная ошибка (подробности: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Папки «%1» нет на месте.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Его имя теперь носит другой файл.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Его больше нет в папке «%1».</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Недостаточно свободного места: видео займёт около %1, а свободно %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Система перегружена: невозможно запустить ещё один поток.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Декодер видео неожиданно завершил работу.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Кодировщик видео неожиданно завершил работу. От нового файла ничего не осталось.</translation>
    </message>
</context>
</TS>
