<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Den hämtas redan.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Uppdateringen kan inte sparas: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Videotrimmare</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Trimma, beskär och rotera videor, exakt på bildrutan</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>klippa;klipp;korta;trimma;beskära;rotera;film;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nytt fönster</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Trimma, beskär och rotera videor</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet gör en sak: en kortare, beskuren eller roterad kopia av en video. Släpp en fil på fönstret, dra i de två handtagen över filmremsan och exportera.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Den första bilden i exporten är den du såg i början av intervallet, och ljudet stannar där det var.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Beskär och roterar i samma steg, med en enda noggrann omsampling.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Behåller färger, stort dynamiskt omfång, ljudspår, kapitel och datum.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Skriver MP4 och MOV; läser det som kameror, telefoner och skärminspelare skriver.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Rör aldrig originalet och lämnar aldrig en halvskriven fil.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Videor (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Öppna</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alla filer (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>”%1” är den video som redigeras. Välj ett annat namn.</translation>
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
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nej</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Stäng</translation>
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
        <translation>Skift</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Space</source>
        <translation>Blanksteg</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Upp</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Ned</translation>
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
        <translation>Page Up</translation>
    </message>
    <message>
        <source>PgDown</source>
        <translation>Page Down</translation>
    </message>
</context>
<context>
    <name>brisklet::AppCommands</name>
    <message>
        <source>About Brisklet</source>
        <translation>Om Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Sök efter uppdateringar…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nytt fönster</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Öppna video…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exportera…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Stäng video</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Sätt startpunkt vid spelhuvudet</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Sätt slutpunkt vid spelhuvudet</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Föregående bildruta</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Nästa bildruta</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Upprepa uppspelning</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arkiv</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Klipp</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Ta bort från filhanterare</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Lägg till i filhanterare</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Posterna i filhanterarna kunde inte ändras: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Trimmar, beskär och roterar videor, exakt på bildrutan.

Fri programvara under GNU General Public License, version 3 eller senare.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Ångra: startpunkt</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Gör om: startpunkt</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Ångra: slutpunkt</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Gör om: slutpunkt</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Ångra: beskär</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Gör om: beskär</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Ångra: ta bort beskärning</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Gör om: ta bort beskärning</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Ångra: rotera</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Gör om: rotera</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Ångra: tysta</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Gör om: tysta</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Ångra: slå på ljudet</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Gör om: slå på ljudet</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tangentbordsgenvägar</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Återöppna senaste redigering</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Visa senaste export</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ångra</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Gör om</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Gå till tid…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Intervallets början, sedan videons början</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Intervallets slut, sedan videons slut</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>En sekund bakåt</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>En sekund framåt</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Redigera</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Gå</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hjälp</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>Mappen ”%1” finns inte längre.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Det finns ingen filhanterare som kan visa mappen ”%1”.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Högst %1 videor öppnas på en gång.</translation>
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
        <translation>Användning: brisklet [VIDEO...]
Trimmar videor. Varje VIDEO öppnas i ett eget fönster.

  --install-quick-action  lägg till ”Trimma video” i filhanterare och avsluta
  --help                  skriv ut denna hjälp och avsluta
  --version               skriv ut versionen och avsluta
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Släppyta</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Redigerare</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Öppna igen</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>Exportera %1…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Exportalternativ</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Återställ till standard</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Format</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Upplösning</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pausa</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Spela upp</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Slå på ljudet (tas annars bort vid export)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Tysta</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Rotera åt vänster</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Ta bort beskärning</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Beskär</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>ungefär %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Spela upp eller pausa</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Tysta eller slå på ljudet</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Beskär eller ta bort beskärningen</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Beskärning</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 vid %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Flytta beskärningen</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Flytta dess högra eller nedre sida</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Flytta dess vänstra eller övre sida</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Beskärning, med musen</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Dra inuti den</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Dra i ett handtag</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Ändra beskärningens storlek</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc under dragning</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Ta tillbaka dragningen</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Beskärning, nås med Tabb</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Piltangenter</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Skift med dessa tangenter</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Tio gånger så långt</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet körs redan, men svarar inte.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Visa</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Servern tog för lång tid på sig.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>”%1” är inte en säker adress.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Servern leder till ”%1”, som inte är en säker adress.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Servern skickar mer än den borde.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>Hämtningen kan inte sparas: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>Anslutningen till ”%1” är inte säker: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Släpp en video här</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Öppna video…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>trimmad</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>”%1” innehåller inget videospår.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Kunde inte öppna ”%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kunde inte återöppna ”%1”: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>”%1” kan inte längre visas: dess avkodare har stoppats oväntat. Redigeringen har inte gått förlorad.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Något gick fel</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Avbryt</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Nedåtpilen öppnar en meny med format och upplösningar</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Exportknapp, nås med Tabb</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Välj format och upplösning</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>MPEG-4-film</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>QuickTime-film</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Exporten misslyckades: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Exporten är klar</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Exporten misslyckades</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>En video exporteras.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Exporterar…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Exportförlopp</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>ungefär %1 kvar</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Original</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Trimma video</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Öppna de markerade videorna i Brisklet</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>”%1” kunde inte skrivas: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>”%1” kunde inte tas bort: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>”%1” finns inte på den här datorn, och ingen mapp här leder dit.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Gå till tid</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Gå till:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Gå</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Det är ingen tid. Skriv en, till exempel 1:23.456, +10f eller #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Videon slutar vid %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Bildrutorna i videon har inga kända nummer. Skriv en tid.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Den sista bildrutan är #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>En tid, bildrutor härifrån eller en bildruta: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>En tid eller bildrutor härifrån: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Skriv +%1f för att gå så många bildrutor framåt, eller #%1 för bildrutan med det numret.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Videon börjar vid %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tangentbordsgenvägar</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Åtgärd</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Tangenter eller gest</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Kontroller</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>1/10 hastighet</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>1/100 hastighet</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>Servern ”%1” går inte att hitta.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>Servern ”%1” tar inte emot någon anslutning.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>Anslutningen till ”%1” bröts.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>Servern ”%1” omdirigerar i all oändlighet.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>Servern ”%1” svarar med ett fel (status %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>Anslutningen till ”%1” misslyckades (detaljer: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>certifikatet gäller en annan server</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>certifikatet har gått ut eller gäller inte ännu</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>certifikatet är inte betrott</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>certifikatet kan inte kontrolleras (detaljer: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>”%1” kunde inte skapas: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>”%1” kunde inte skrivas: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>”%1” kunde inte kopieras: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>”%1” kunde inte tas bort: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Den finns inte.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Programmets plats kunde inte fastställas.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Startpunkt</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Spelhuvud</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Slutpunkt</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>En bildruta bakåt</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>En bildruta framåt</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>En sekund bakåt</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>En sekund framåt</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Så långt bakåt som möjligt</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Så långt framåt som möjligt</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Skift med dessa tangenter</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Tio gånger så långt</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Tidslinje, med musen</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Klicka eller dra</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Flytta spelhuvudet</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Dra i ett handtag</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Flytta startpunkten eller slutpunkten</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc under dragning</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Ta tillbaka dragningen</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Startpunkt, spelhuvud och slutpunkt, nås med Tabb</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Skapar filmremsan…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Dra med Skift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Flytta en tiondel så långt som pekaren</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Dra med Skift, långt ovanför eller nedanför</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Flytta en hundradel så långt</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Mushjul</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Stega en bildruta</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Mushjul med Skift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Stega tio bildrutor</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Mushjul över ett handtag</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Stega med den änden av intervallet</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Tidslinje</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Intervall %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Uppdateringar</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Sök efter uppdateringar automatiskt?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet kan en gång om dagen se efter om det finns en ny version. Du kan också söka från menyn.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Söker efter uppdateringar…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Du har den senaste versionen.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 är den senaste tillgängliga versionen.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Uppdatering</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Installera uppdatering</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Påminn mig senare</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Hoppa över denna version</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>En ny version av Brisklet finns tillgänglig.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 finns tillgänglig; du har %2. Vill du installera den nya versionen?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Hämtar Brisklet %1…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Uppdateringen misslyckades.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Listan över uppdateringar är skadad.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Kunde inte söka efter uppdateringar: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Uppdateringen är för stor.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Uppdateringen kunde inte hämtas: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Uppdateringen är ofullständig. Den har inte installerats.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Uppdateringen är inte äkta: dess signatur är fel. Den har inte installerats.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Det finns inget program att installera uppdateringen med. Den finns här: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Stoppa exporten och stänga?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Stoppa och stäng</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Fortsätt exportera</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>Stoppa %n export och stänga?</numerusform>
            <numerusform>Stoppa %n exporter och stänga?</numerusform>
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
        <translation>okänd flagga %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 tar inget värde</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 behöver ett värde</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 är angiven två gånger</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 behöver ett tal, inte ”%2”</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 behöver ett heltal, inte ”%2”</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>något saknas: förväntade %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>oväntat argument ”%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>ett namn är tomt</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count behöver ett tal från 1 till %1</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS behöver ett tal från 0, inte ”%1”</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop behöver X,Y,W,H, inte ”%1”</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop behöver bråkdelar av bilden, från 0 till 1, med en yta</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format känner till %1, inte ”%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> och </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>utdatanamnet anger inte vilket format: lägg till --format %1</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> eller </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 känner inte till ”%2”</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start får inte vara negativt</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end måste komma efter --start</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge behöver ett antal bildpunkter</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress känner bara till json, inte ”%1”</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>inget kommando är angivet</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>”%1” är inget kommando</translation>
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
        <translation>Användning: brisklet-cli probe SOURCE
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
        <translation>probe      skriver ut vad filen är, som ett JSON-objekt.
filmstrip  skriver N (12) små stillbilder från mitten av N lika delar till
           katalogen som 00.png, 01.png, ... och skriver ut tiderna som JSON.
frame      skriver den rättvända bild som en spelare visar vid den tiden.
export     skriver en kopia av filen:
  --start, --end        den del som ska behållas, i sekunder (allt)
  --crop                i bråkdelar av bilden som den visas efter --rotate,
                        från dess övre vänstra hörn
  --rotate              kvartsvarv medurs, i grader
  --mute                utelämnar ljudet
  --max-short-edge      skalar ner till så här många bildpunkter på kortsidan
  --format              %1 (vad utdatanamnet slutar på)
  --progress json       skriver ut en JSON-rad per rapport i stället för stapel
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        andra kodarinställningar än programmets, för mätningar

  --help, --version     skriver ut denna hjälp, eller versionen, och avslutar

Slutstatus: 0 klar; 1 misslyckades; 2 felaktig användning; 130 avbruten.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Exporten misslyckades: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Kunde inte skriva ”%1”: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kunde inte öppna ”%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Kunde inte skriva svaret: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>”%1” innehåller inget videospår.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Kunde inte skriva bilden som PNG.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Kunde inte skapa mappen ”%1”: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Videon har ingen längd.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Kunde inte skapa en filmremsa av ”%1”: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Kunde inte skapa bilden: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Menyposterna kunde inte läggas till: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>”Trimma video” har lagts till i filhanterarna</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>okänd flagga ”%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Det är ingen videofil, eller så är den skadad.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Dess format stöds inte.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Dess videokodek stöds inte.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Den är krypterad eller kopieringsskyddad.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Filen finns inte.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Du har inte behörighet att läsa den här filen.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Filnamnet är för långt.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Länken till filen leder ingenstans.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Det är inte en vanlig fil.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Det är en mapp, inte en videofil.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Filen är tom.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Filen kan inte läsas: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Videon kan inte läsas: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>”%1” har ändrats sedan den öppnades.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Filen slutar för tidigt.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Videon kapades medan den lästes.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Disken rapporterade ett fel när videon lästes.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Filen innehåller inget videospår.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Inte en enda bild i filen kan avkodas.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Det finns ingen bild vid den här tiden.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Bilder i bildpunktsformatet ”%1” kan inte konverteras.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Bildernas färger kan inte konverteras.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Bildens färger kan inte konverteras.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kunde inte öppna ”%1”: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Intervallet att exportera är tomt.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Källfilen innehåller inget videospår.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Kunde inte förbereda exporten av videon.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Det finns ingen video att exportera.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Videon kan inte exporteras över sig själv.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Inte en enda bild i intervallet kan avkodas.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Den nya filen skadades när den skrevs.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>En kodare som exporten behöver är inte installerad.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>Kodaren %1 godtar inte inställningen ”%2”.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>”%1” skrivs av en annan export.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Den ofärdiga nya filen togs bort av ett annat program.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Mappen ”%1” för den nya filen finns inte.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>Du har inte behörighet att skriva till mappen ”%1”.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>Disken med mappen ”%1” är skrivskyddad.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>En mapp har den nya filens namn.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Något som inte är en vanlig fil har den nya filens namn.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Den nya filens namn är för långt.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Disken rapporterade ett fel när den nya filen skrevs.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Den nya filen kan inte skrivas: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Det finns inte tillräckligt med minne.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Det finns inte tillräckligt med utrymme på disken.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Filen skulle bli för stor för den här disken.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Disken rapporterade ett fel.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Mediemotorn kan inte hittas: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet är inte fullständigt installerat. Installera det igen.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet har uppdaterats. Starta det igen.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>åtkomst nekas</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>åtgärden är inte tillåten</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>filen eller mappen finns inte</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>är inte en mapp</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>filen finns redan</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>är en mapp</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>ogiltigt argument</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>för många öppna filer</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>skrivskyddat filsystem</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>filen finns inte kvar på nätverket</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>anslutningen överskred tidsgränsen</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>enheten eller resursen är upptagen</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>för många nivåer av symboliska länkar</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>mottagaren har avslutats</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>inget ledigt utrymme på enheten</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>diskkvoten har överskridits</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>in-/utmatningsfel</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>för långt filnamn</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>fel i ett externt programbibliotek</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>stöds ännu inte av FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>oväntat fel (detaljer: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Mappen ”%1” finns inte.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>En annan fil har nu dess namn.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Den finns inte längre i mappen ”%1”.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Det finns inte tillräckligt med ledigt utrymme: videon kräver ungefär %1, och %2 är ledigt.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Systemet är för upptaget: det kan inte starta en tråd till.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Videoavkodaren har stoppats oväntat.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Videokodaren har stoppats oväntat. Inget av den nya filen finns kvar.</translation>
    </message>
</context>
</TS>
