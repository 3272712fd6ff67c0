<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Jest już pobierana.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Nie można zapisać aktualizacji: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Przycinanie wideo</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Przycinanie, kadrowanie i obracanie wideo z dokładnością do klatki</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>wytnij;przytnij;skróć;kadruj;obróć;klip;wideo;film;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nowe okno</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Przycinanie, kadrowanie i obracanie wideo</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet robi jedno: krótszą, wykadrowaną lub obróconą kopię wideo. Wystarczy upuścić plik na okno, przeciągnąć dwa uchwyty nad paskiem klatek i wyeksportować.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Pierwsza klatka eksportu to ta, którą było widać na początku zakresu, a dźwięk pozostaje na swoim miejscu.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Kadruje i obraca w jednym kroku, z jednym starannym przepróbkowaniem.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Zachowuje kolory, szeroki zakres dynamiki, ścieżki dźwiękowe, rozdziały i daty.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Zapisuje MP4 i MOV; odczytuje to, co zapisują kamery, telefony i programy do nagrywania ekranu.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Nigdy nie zmienia oryginału ani nie pozostawia niedokończonego pliku.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Pliki wideo (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Otwieranie</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Wszystkie pliki (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>„%1” to wideo, które jest właśnie edytowane. Należy wybrać inną nazwę.</translation>
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
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Tak</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nie</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Zamknij</translation>
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
        <translation>Spacja</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>W lewo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>W prawo</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Góra</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dół</translation>
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
        <translation>O programie Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sprawdź aktualizacje…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Zakończ</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nowe okno</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Otwórz wideo…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Eksportuj…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Zamknij wideo</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Ustaw początek przycięcia na wskaźniku odtwarzania</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Ustaw koniec przycięcia na wskaźniku odtwarzania</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Poprzednia klatka</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Następna klatka</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Zapętlaj odtwarzanie</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Plik</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Usuń z menedżerów plików</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Dodaj do menedżerów plików</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Nie można zmienić menu menedżerów plików: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Przycina, kadruje i obraca wideo z dokładnością do klatki.

Wolne oprogramowanie na licencji GNU General Public License w wersji 3 lub nowszej.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Cofnij początek przycięcia</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Ponów początek przycięcia</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Cofnij koniec przycięcia</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Ponów koniec przycięcia</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Cofnij kadrowanie</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Ponów kadrowanie</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Cofnij usunięcie kadrowania</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Ponów usunięcie kadrowania</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Cofnij obrót</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Ponów obrót</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Cofnij wyciszenie</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Ponów wyciszenie</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Cofnij włączenie dźwięku</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Ponów włączenie dźwięku</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Otwórz ponownie ostatnią edycję</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Pokaż ostatni eksport</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Cofnij</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Ponów</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Przejdź do czasu…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Początek zakresu, potem początek wideo</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Koniec zakresu, potem koniec wideo</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Sekunda wstecz</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Sekunda naprzód</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Edycja</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>P&amp;rzejdź</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Pomo&amp;c</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Katalogu „%1” już nie ma.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Nie ma menedżera plików, który mógłby pokazać katalog „%1”.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Naraz otwiera się najwyżej tyle filmów: %1.</translation>
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
        <translation>Użycie: brisklet [VIDEO...]
Przycina wideo. Każde VIDEO otwiera się w osobnym oknie.

  --install-quick-action  dodaje „Przytnij wideo” do menedżerów plików i kończy
  --help                  wyświetla tę pomoc i kończy
  --version               wyświetla wersję i kończy
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Miejsce upuszczania</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Edytor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Otwórz ponownie</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Eksportuj %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Opcje eksportu</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Przywróć domyślne</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Rozdzielczość</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Wstrzymaj</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Odtwarzaj</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Włącz dźwięk (inaczej zostanie usunięty przy eksporcie)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Wycisz</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Obróć w lewo</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Usuń kadrowanie</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Kadruj</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>około %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Odtwarzaj lub wstrzymaj</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Wycisz lub włącz dźwięk</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Kadruj lub usuń kadrowanie</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Ramka kadru</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 w punkcie %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Przesunięcie ramki kadru</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Przesunięcie jej prawego lub dolnego boku</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Przesunięcie jej lewego lub górnego boku</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Ramka kadru, mysz</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Przeciągnięcie jej wnętrza</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Przeciągnięcie uchwytu</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Zmiana rozmiaru ramki kadru</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc w trakcie przeciągania</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Cofnięcie przeciągnięcia</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Ramka kadru, dostępna przez Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Klawisze strzałek</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift z tymi klawiszami</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dziesięć razy dalej</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet już działa, ale nie odpowiada.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Pokaż</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Serwer nie odpowiadał zbyt długo.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>„%1” nie jest bezpiecznym adresem.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Serwer kieruje do „%1”, a to nie jest bezpieczny adres.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Serwer wysyła więcej danych, niż powinien.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Nie można zapisać pobranych danych: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>Połączenie z „%1” nie jest bezpieczne: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Upuść wideo tutaj</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Otwórz wideo…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>przycięte</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1” nie zawiera ścieżki wideo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Nie można otworzyć „%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Nie można ponownie otworzyć „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Nie można już wyświetlać „%1”: dekoder nieoczekiwanie przestał działać. Edycja nie została utracona.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Coś się nie powiodło</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Anuluj</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Klawisz „W dół” otwiera menu formatów i rozdzielczości</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Przycisk eksportu, dostępny przez Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Wybór formatu i rozdzielczości</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>Film MPEG-4</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>Film QuickTime</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Eksport się nie powiódł: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Eksport ukończony</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Eksport nieudany</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Trwa eksportowanie wideo.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Eksportowanie…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Eksport</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Postęp eksportu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Anuluj</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>pozostało około %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Oryginalna</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Przytnij wideo</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Otwiera zaznaczone wideo w programie Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>Nie można zapisać „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Nie można usunąć „%1”: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>„%1” nie znajduje się na tym komputerze i żaden katalog tutaj do niego nie prowadzi.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Przejście do czasu</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Przejdź do:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Przejdź</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>To nie jest czas. Należy wpisać np. 1:23.456, +10f lub #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Wideo kończy się na %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Numery klatek tego wideo są nieznane. Należy wpisać czas.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Ostatnia klatka to #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Czas, liczba klatek od tego miejsca lub numer klatki: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Czas lub liczba klatek od tego miejsca: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Należy wpisać +%1f, aby przejść o tyle klatek, lub #%1, aby przejść do klatki o tym numerze.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Wideo zaczyna się na %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Skróty klawiszowe</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Działanie</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Klawisze lub gest</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Sterowanie</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>Prędkość 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>Prędkość 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Nie można znaleźć serwera „%1”.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Serwer „%1” nie przyjmuje połączenia.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Połączenie z „%1” zostało przerwane.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Serwer „%1” przekierowuje bez końca.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Serwer „%1” odpowiada błędem (status %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Połączenie z „%1” nie powiodło się (szczegóły: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>certyfikat należy do innego serwera</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>certyfikat wygasł lub nie jest jeszcze ważny</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>certyfikat nie jest zaufany</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>nie można sprawdzić certyfikatu (szczegóły: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>Nie można utworzyć „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>Nie można zapisać „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>Nie można skopiować „%1”: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>Nie można usunąć „%1”: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Nie istnieje.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Nie można ustalić położenia programu.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Początek przycięcia</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Wskaźnik odtwarzania</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Koniec przycięcia</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Klatka wstecz</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Klatka naprzód</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Sekunda wstecz</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Sekunda naprzód</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Jak najdalej wstecz</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Jak najdalej naprzód</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift z tymi klawiszami</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Dziesięć razy dalej</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Oś czasu, mysz</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Kliknięcie lub przeciągnięcie</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Przesunięcie wskaźnika odtwarzania</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Przeciągnięcie uchwytu</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Przesunięcie początku lub końca przycięcia</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc w trakcie przeciągania</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Cofnięcie przeciągnięcia</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Początek przycięcia, wskaźnik odtwarzania i koniec przycięcia, dostępne przez Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Tworzenie paska klatek…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Przeciągnięcie z Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Ruch dziesięć razy mniejszy niż ruch kursora</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Przeciągnięcie z Shift dużo wyżej lub niżej</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Ruch sto razy mniejszy</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Kółko</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Krok o klatkę</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Kółko z Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Krok o dziesięć klatek</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Kółko nad uchwytem</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Krok tego krańca zakresu</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Oś czasu</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Zakres %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Aktualizacje</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatycznie sprawdzać aktualizacje?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet może raz dziennie sprawdzać, czy jest nowa wersja. Można to też zrobić ręcznie z menu programu.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Sprawdzanie aktualizacji…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Program jest aktualny.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 to najnowsza dostępna wersja.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizacja</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Zainstaluj aktualizację</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Przypomnij później</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Pomiń tę wersję</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Dostępna jest nowa wersja programu Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Dostępny jest Brisklet %1; zainstalowana wersja to %2. Zainstalować nową?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Pobieranie programu Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Aktualizacja się nie powiodła.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Lista aktualizacji jest uszkodzona.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Nie można sprawdzić aktualizacji: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Aktualizacja jest za duża.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Nie można pobrać aktualizacji: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Aktualizacja jest niekompletna. Nie została zainstalowana.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Aktualizacja nie jest autentyczna: jej podpis jest błędny. Nie została zainstalowana.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Nie ma programu, który mógłby zainstalować aktualizację. Aktualizacja jest tutaj: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Zatrzymać eksport i zamknąć?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Zatrzymaj i zamknij</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Eksportuj dalej</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Zatrzymać %n eksport i zamknąć?</numerusform>
            <numerusform>Zatrzymać %n eksporty i zamknąć?</numerusform>
            <numerusform>Zatrzymać %n eksportów i zamknąć?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 godz.</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>nieznana opcja %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nie przyjmuje wartości</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 wymaga wartości</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 podano dwukrotnie</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 wymaga liczby, nie „%2”</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 wymaga liczby całkowitej, nie „%2”</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>czegoś brakuje: oczekiwano %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>nieoczekiwany argument „%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>nazwa jest pusta</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count wymaga liczby od 1 do %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS wymaga liczby od 0, nie „%1”</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop wymaga X,Y,W,H, nie „%1”</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop wymaga ułamków obrazu od 0 do 1, tworzących niepusty obszar</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format przyjmuje %1, nie „%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> i </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>z nazwy pliku wyjściowego nie wynika format: należy dodać --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> lub </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 nie przyjmuje „%2”</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start nie może być ujemne</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end musi być większe niż --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge wymaga liczby pikseli</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress przyjmuje tylko json, nie „%1”</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>nie podano polecenia</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>„%1” nie jest poleceniem</translation>
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
        <translation>Użycie: brisklet-cli probe SOURCE
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
        <translation>probe      wypisuje informacje o pliku jako jeden obiekt JSON.
filmstrip  zapisuje w katalogu N (12) miniatur ze środków N równych odcinków
           jako 00.png, 01.png, ... i wypisuje ich czasy jako JSON.
frame      zapisuje klatkę z tego czasu tak, jak pokazuje ją odtwarzacz.
export     zapisuje kopię pliku:
  --start, --end        zachowywana część, w sekundach (całość)
  --crop                w ułamkach obrazu wyświetlanego po --rotate,
                        od jego lewego górnego rogu
  --rotate              ćwierćobroty w prawo, w stopniach
  --mute                pomija dźwięk
  --max-short-edge      zmniejsza krótszy bok do tylu pikseli
  --format              %1 (według końcówki nazwy pliku wyjściowego)
  --progress json       wypisuje wiersz JSON na każdy raport zamiast paska
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        inne ustawienia kodera niż w programie, do pomiarów

  --help, --version     wypisuje tę pomoc lub wersję i kończy działanie

Kod wyjścia: 0 gotowe; 1 niepowodzenie; 2 błędne użycie; 130 przerwano.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Eksport się nie powiódł: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Nie można zapisać „%1”: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Nie można otworzyć „%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Nie można wypisać odpowiedzi: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1” nie zawiera ścieżki wideo.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Nie można zapisać obrazu jako PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Nie można utworzyć katalogu „%1”: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Nie ma długości.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Nie można utworzyć paska klatek z „%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Nie można utworzyć obrazu: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Nie można dodać do menu menedżerów plików: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>Dodano „Przytnij wideo” do menedżerów plików</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>nieznana opcja „%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>To nie jest plik wideo lub jest on uszkodzony.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Jego format nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Jego kodek wideo nie jest obsługiwany.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Plik jest zaszyfrowany lub zabezpieczony przed kopiowaniem.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Plik nie istnieje.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Brak uprawnień do odczytania tego pliku.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Nazwa pliku jest za długa.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Dowiązanie do pliku prowadzi donikąd.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>To nie jest zwykły plik.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>To jest katalog, a nie plik wideo.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Plik jest pusty.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Nie można odczytać pliku: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Nie można odczytać wideo: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>Plik „%1” został zmieniony po otwarciu.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Plik kończy się za wcześnie.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Wideo zostało skrócone podczas odczytywania.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Dysk zgłosił błąd podczas odczytywania wideo.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Plik nie zawiera ścieżki wideo.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Nie można zdekodować żadnej klatki z tego pliku.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>W tym czasie nie ma klatki.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Nie można przekształcić klatek w formacie pikseli „%1”.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Nie można przekształcić kolorów klatek.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Nie można przekształcić kolorów klatki.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Nie można otworzyć „%1”: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Zakres do wyeksportowania jest pusty.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Plik źródłowy nie zawiera ścieżki wideo.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Nie można przygotować eksportu tego wideo.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Nie ma wideo do wyeksportowania.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Nie można wyeksportować wideo w miejsce jego samego.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Nie można zdekodować żadnej klatki z tego zakresu.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Nowy plik został uszkodzony podczas zapisywania.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Koder potrzebny do eksportu nie jest zainstalowany.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Koder %1 nie przyjmuje ustawienia „%2”.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>Plik „%1” jest właśnie zapisywany przez inny eksport.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Inny program usunął niedokończony nowy plik.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Katalog „%1” dla nowego pliku nie istnieje.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Brak uprawnień do zapisu w katalogu „%1”.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Dysk z katalogiem „%1” jest chroniony przed zapisem.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Nazwę nowego pliku nosi już katalog.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Nazwę nowego pliku nosi już coś, co nie jest zwykłym plikiem.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Nazwa nowego pliku jest za długa.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Dysk zgłosił błąd podczas zapisywania nowego pliku.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Nie można zapisać nowego pliku: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Za mało pamięci.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Za mało miejsca na dysku.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Plik byłby za duży dla tego dysku.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Dysk zgłosił błąd.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Nie można odnaleźć silnika multimediów: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Program Brisklet nie jest w pełni zainstalowany. Należy zainstalować go ponownie.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Program Brisklet został zaktualizowany. Należy uruchomić go ponownie.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>Brak dostępu</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operacja niedozwolona</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Nie ma takiego pliku ani katalogu</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>To nie jest katalog</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Plik istnieje</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>To jest katalog</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Błędny argument</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Za dużo otwartych plików</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>System plików tylko do odczytu</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Pliku nie ma już na dysku sieciowym</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Przekroczono czas oczekiwania na połączenie</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Urządzenie lub zasób zajęte</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Za dużo poziomów dowiązań symbolicznych</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Potok został przerwany</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Brak miejsca na urządzeniu</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Przekroczono limit dyskowy</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Błąd wejścia/wyjścia</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Za długa nazwa pliku</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Ogólny błąd w zewnętrznej bibliotece</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>Jeszcze niezaimplementowane w FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>Nieoczekiwany błąd (szczegóły: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Brak katalogu „%1”.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Inny plik ma teraz jego nazwę.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Nie ma go już w katalogu „%1”.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Za mało wolnego miejsca: wideo zajmie około %1, a wolne jest %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>System jest zbyt obciążony: nie może uruchomić kolejnego wątku.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Dekoder wideo nieoczekiwanie przestał działać.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Koder wideo nieoczekiwanie przestał działać. Z nowego pliku nic nie pozostało.</translation>
    </message>
</context>
</TS>
