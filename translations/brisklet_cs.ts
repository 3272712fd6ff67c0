<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Už se stahuje.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Aktualizaci nelze uložit: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Zkracování videa</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Zkracování, ořezávání a otáčení videa s přesností na snímek</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>střih;zkrátit;oříznout;výřez;otočit;klip;video;film;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nové okno</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Zkracování, ořezávání a otáčení videa</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet dělá jednu věc: zkrácenou, oříznutou nebo otočenou kopii videa. Přetáhněte soubor do okna, posuňte dvě táhla nad filmovým pásem a exportujte.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>První snímek exportu je ten, který jste viděli na začátku úseku, a zvuk zůstává tam, kde byl.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Ořezává a otáčí v jednom kroku, s jediným pečlivým převzorkováním.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Zachovává barvy, vysoký dynamický rozsah, zvukové stopy, kapitoly a data pořízení.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Zapisuje MP4 a MOV; čte to, co zapisují kamery, telefony a programy pro záznam obrazovky.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Nikdy nemění originál a nikdy nenechává napůl zapsaný soubor.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Videa (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Otevřít</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Všechny soubory (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>„%1“ je video, které se právě upravuje. Zvolte jiný název.</translation>
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
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ano</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Ne</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Zavřít</translation>
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
        <translation>Mezerník</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Šipka vlevo</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Šipka vpravo</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Nahoru</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Dolů</translation>
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
        <translation>O aplikaci Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Zkontrolovat aktualizace…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nové okno</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Otevřít video…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exportovat…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Zavřít video</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Nastavit začátek střihu na ukazatel přehrávání</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Nastavit konec střihu na ukazatel přehrávání</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Předchozí snímek</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Následující snímek</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Přehrávat ve smyčce</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Soubor</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Odebrat ze správců souborů</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Přidat do správců souborů</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Nelze změnit nabídky správců souborů: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Zkracuje, ořezává a otáčí videa s přesností na snímek.

Svobodný software pod licencí GNU General Public License, verze 3 nebo novější.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Vrátit zpět začátek střihu</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Provést znovu začátek střihu</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Vrátit zpět konec střihu</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Provést znovu konec střihu</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Vrátit zpět oříznutí</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Provést znovu oříznutí</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Vrátit zpět zrušení ořezu</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Provést znovu zrušení ořezu</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Vrátit zpět otočení</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Provést znovu otočení</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Vrátit zpět ztlumení</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Provést znovu ztlumení</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Vrátit zpět zapnutí zvuku</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Provést znovu zapnutí zvuku</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Znovu otevřít poslední úpravy</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Zobrazit poslední export</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Vrátit zpět</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Provést znovu</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Přejít na čas…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Začátek úseku, pak začátek videa</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Konec úseku, pak konec videa</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>O sekundu zpět</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>O sekundu vpřed</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Úpr&amp;avy</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Přejít</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Nápověda</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Složka „%1“ už neexistuje.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Není tu žádný správce souborů, který by složku „%1“ zobrazil.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Najednou se otevírá nejvýše tento počet videí: %1.</translation>
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
        <translation>Použití: brisklet [VIDEO...]
Zkracuje videa. Každé VIDEO se otevře ve vlastním okně.

  --install-quick-action  přidá „Zkrátit video“ do správců souborů a skončí
  --help                  vypíše tuto nápovědu a skončí
  --version               vypíše verzi a skončí
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Místo pro přetažení</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Otevřít znovu</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Exportovat %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Volby exportu</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Obnovit výchozí</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Formát</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Rozlišení</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pozastavit</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Zapnout zvuk (jinak se při exportu odstraní)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Otočit doleva</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Zrušit ořez</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Oříznout</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>asi %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Přehrát nebo pozastavit</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Ztlumit nebo zapnout zvuk</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Oříznout nebo zrušit ořez</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Ořez</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 v bodě %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Přesunout ořez</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Posunout jeho pravou nebo dolní stranu</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Posunout jeho levou nebo horní stranu</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Ořez, myší</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Táhnout uvnitř</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Táhnout za táhlo</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Změnit velikost ořezu</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc během tažení</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Vzít tažení zpět</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Ořez, dostupný klávesou Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Klávesy se šipkami</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift s těmito klávesami</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Desetkrát dále</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet už běží, ale neodpovídá.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Zobrazit</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Serveru to trvalo příliš dlouho.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>„%1“ není bezpečná adresa.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Server odkazuje na „%1“, což není bezpečná adresa.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Server posílá více dat, než by měl.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Stažená data nelze uložit: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>Připojení k „%1“ není bezpečné: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Přetáhněte sem video</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Otevřít video…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>zkráceno</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1“ neobsahuje obrazovou stopu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>„%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ nelze znovu otevřít: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>Video „%1“ už nelze zobrazit: jeho dekodér neočekávaně skončil. Úpravy nejsou ztraceny.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Něco se nepovedlo</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Zrušit</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Klávesa Šipka dolů otevře nabídku formátů a rozlišení</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Tlačítko exportu, dostupné klávesou Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Zvolit formát a rozlišení</translation>
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
        <translation>Export selhal: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Export dokončen</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Export selhal</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Exportuje se video.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Exportuje se…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Průběh exportu</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>zbývá asi %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Původní</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Zkrátit video</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Otevřít vybraná videa v aplikaci Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>„%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>„%1“ nelze odebrat: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>„%1“ není na tomto počítači a žádná složka zde k němu nevede.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Přejít na čas</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Přejít na:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Přejít</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>To není čas. Zadejte například 1:23.456, +10f nebo #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Video končí v čase %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Čísla snímků tohoto videa nejsou známa. Zadejte čas.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Poslední snímek je #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Čas, počet snímků odsud nebo číslo snímku: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Čas nebo počet snímků odsud: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Zadejte +%1f pro posun o tolik snímků, nebo #%1 pro snímek s tímto číslem.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Video začíná v čase %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klávesové zkratky</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Akce</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Klávesy nebo gesto</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Ovládání</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>Rychlost 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>Rychlost 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Server „%1“ nelze najít.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Server „%1“ nepřijímá připojení.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Připojení k „%1“ bylo přerušeno.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Server „%1“ přesměrovává donekonečna.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Server „%1“ odpovídá chybou (stav %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Připojení k „%1“ selhalo (podrobnosti: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>jeho certifikát patří jinému serveru</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>jeho certifikát vypršel nebo ještě neplatí</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>jeho certifikát není důvěryhodný</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>jeho certifikát nelze ověřit (podrobnosti: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>„%1“ nelze vytvořit: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>„%1“ nelze zapsat: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>„%1“ nelze zkopírovat: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>„%1“ nelze odebrat: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Neexistuje.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Nelze zjistit umístění programu.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Začátek střihu</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Ukazatel přehrávání</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Konec střihu</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>O snímek zpět</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>O snímek vpřed</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>O sekundu zpět</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>O sekundu vpřed</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Co nejdále zpět</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Co nejdále vpřed</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift s těmito klávesami</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Desetkrát dále</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Časová osa, myší</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Kliknout nebo táhnout</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Přesunout ukazatel přehrávání</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Táhnout za táhlo</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Posunout začátek nebo konec střihu</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc během tažení</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Vzít tažení zpět</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Začátek střihu, ukazatel přehrávání a konec střihu, dostupné klávesou Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Vytváří se filmový pás…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Táhnout se Shiftem</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Posun desetkrát menší než u kurzoru myši</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Táhnout se Shiftem, daleko nahoře či dole</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Posun stokrát menší</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Kolečko</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Krok o snímek</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Kolečko se Shiftem</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Krok o deset snímků</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Kolečko nad táhlem</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Krok tímto okrajem úseku</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Časová osa</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Úsek %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Kontrolovat aktualizace automaticky?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet může jednou denně zjišťovat, zda existuje nová verze. Můžete to také zkontrolovat z jeho nabídky.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Kontrolují se aktualizace…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Máte nejnovější verzi.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 je nejnovější dostupná verze.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualizace</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Nainstalovat aktualizaci</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Připomenout později</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Přeskočit tuto verzi</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Je dostupná nová verze aplikace Brisklet.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Je tu Brisklet %1; máte verzi %2. Chcete novou verzi nainstalovat?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Stahuje se Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Aktualizace se nezdařila.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Seznam aktualizací je poškozený.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Aktualizace nelze zkontrolovat: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Aktualizace je příliš velká.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Aktualizaci nelze stáhnout: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Aktualizace není úplná. Nebyla nainstalována.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Aktualizace není pravá: její podpis je chybný. Nebyla nainstalována.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Chybí program, kterým by šlo aktualizaci nainstalovat. Aktualizace je zde: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Zastavit export a zavřít?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Zastavit a zavřít</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Exportovat dál</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Zastavit %n export a zavřít?</numerusform>
            <numerusform>Zastavit %n exporty a zavřít?</numerusform>
            <numerusform>Zastavit %n exportů a zavřít?</numerusform>
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
        <translation>%1 h</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>neznámá volba %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 nepřijímá hodnotu</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 vyžaduje hodnotu</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 je zadáno dvakrát</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 vyžaduje číslo, ne „%2“</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 vyžaduje celé číslo, ne „%2“</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>něco chybí: očekává se %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>neočekávaný argument „%1“</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>název je prázdný</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count vyžaduje číslo od 1 do %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS vyžaduje číslo od 0, ne „%1“</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop vyžaduje X,Y,W,H, ne „%1“</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop vyžaduje zlomky obrazu od 0 do 1, tvořící neprázdnou plochu</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format zná %1, ne „%2“</translation>
    </message>
    <message>
        <source> and </source>
        <translation> a </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>z názvu výstupu není zřejmý formát: přidejte --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> nebo </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 nezná „%2“</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start nesmí být záporné</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end musí být větší než --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge vyžaduje počet pixelů</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress zná jen json, ne „%1“</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>není zadán příkaz</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>„%1“ není příkaz</translation>
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
        <translation>Použití: brisklet-cli probe SOURCE
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
        <translation>probe      vypíše informace o souboru jako jeden objekt JSON.
filmstrip  zapíše do adresáře N (12) malých náhledů ze středů N stejných dílů
           jako 00.png, 01.png, ... a vypíše jejich časy jako JSON.
frame      zapíše snímek z daného času tak, jak ho ukazuje přehrávač.
export     zapíše kopii souboru:
  --start, --end        část, která se zachová, v sekundách (vše)
  --crop                ve zlomcích obrazu, jak se zobrazuje po --rotate,
                        od jeho levého horního rohu
  --rotate              čtvrtotáčky po směru hodinových ručiček, ve stupních
  --mute                vynechá zvuk
  --max-short-edge      zmenší kratší stranu na tento počet pixelů
  --format              %1 (podle koncovky názvu výstupu)
  --progress json       vypíše řádek JSON za každé hlášení místo ukazatele
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        jiná nastavení kodéru, než má program, pro měření

  --help, --version     vypíše tuto nápovědu nebo verzi a skončí

Návratový kód: 0 hotovo; 1 selhání; 2 chybné použití; 130 přerušeno.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Export selhal: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>„%1“ nelze zapsat: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Odpověď nelze vypsat: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>„%1“ neobsahuje obrazovou stopu.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Obrázek nelze zapsat jako PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Složku „%1“ nelze vytvořit: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Nemá žádnou délku.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Z „%1“ nelze vytvořit filmový pás: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Obrázek nelze vytvořit: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Nelze přidat do nabídek správců souborů: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>„Zkrátit video“ přidáno do správců souborů</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>neznámá volba „%1“</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Není to soubor s videem, nebo je poškozený.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Jeho formát není podporován.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Jeho obrazový kodek není podporován.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Je šifrovaný nebo chráněný proti kopírování.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Soubor neexistuje.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Nemáte oprávnění číst tento soubor.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Název souboru je příliš dlouhý.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Odkaz na soubor nikam nevede.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Není to obyčejný soubor.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Je to složka, ne soubor s videem.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Soubor je prázdný.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Soubor nelze přečíst: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Video nelze přečíst: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>Soubor „%1“ byl po otevření změněn.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Soubor končí předčasně.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Video bylo během čtení zkráceno.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Disk ohlásil chybu při čtení videa.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Soubor neobsahuje obrazovou stopu.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>V tomto souboru nelze dekódovat ani jeden snímek.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>V tomto čase není žádný snímek.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Snímky ve formátu pixelů „%1“ nelze převést.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Barvy snímků nelze převést.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Barvy snímku nelze převést.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>„%1“ nelze otevřít: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Úsek k exportu je prázdný.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Zdrojový soubor neobsahuje obrazovou stopu.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Export tohoto videa nelze připravit.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Není žádné video k exportu.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Video nelze exportovat přes sebe samo.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>V tomto úseku nelze dekódovat ani jeden snímek.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Nový soubor byl při zápisu poškozen.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Kodér potřebný k exportu není nainstalovaný.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Kodér %1 nepřijímá nastavení „%2“.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>Do souboru „%1“ právě zapisuje jiný export.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Nedokončený nový soubor odstranil jiný program.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Složka „%1“ pro nový soubor neexistuje.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Nemáte oprávnění zapisovat do složky „%1“.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Disk se složkou „%1“ je chráněn proti zápisu.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Název nového souboru už má složka.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Název nového souboru už má něco, co není obyčejný soubor.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Název nového souboru je příliš dlouhý.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Disk ohlásil chybu při zápisu nového souboru.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Nový soubor nelze zapsat: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Není dostatek paměti.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Na disku není dostatek místa.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Soubor by byl pro tento disk příliš velký.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Disk ohlásil chybu.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Multimediální jádro nelze najít: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet není úplně nainstalován. Nainstalujte ho znovu.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet byl aktualizován. Spusťte ho znovu.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>Přístup odmítnut</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>Operace není povolena</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Takový soubor ani adresář neexistuje</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Není adresářem</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Soubor už existuje</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Je adresářem</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Neplatný argument</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Příliš mnoho otevřených souborů</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Souborový systém je jen pro čtení</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Soubor už na síťovém disku není</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Časový limit spojení vypršel</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Zařízení nebo zdroj jsou používány</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Příliš mnoho úrovní symbolických odkazů</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Čtoucí program skončil</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Na zařízení nezbývá místo</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Disková kvóta překročena</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Chyba vstupu/výstupu</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Název souboru je příliš dlouhý</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Obecná chyba v externí knihovně</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>Ve FFmpegu zatím neimplementováno</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>Neočekávaná chyba (podrobnosti: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Složka „%1“ není k dispozici.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Jeho název má nyní jiný soubor.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Už není ve složce „%1“.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Není dostatek volného místa: video zabere asi %1 a volných je %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Systém je přetížený: nemůže spustit další vlákno.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Dekodér videa neočekávaně skončil.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Kodér videa neočekávaně skončil. Z nového souboru nic nezůstalo.</translation>
    </message>
</context>
</TS>
