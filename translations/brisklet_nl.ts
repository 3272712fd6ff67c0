<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Deze wordt al gedownload.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>De update kan niet worden opgeslagen: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Video-inkorter</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Video’s inkorten, bijsnijden en draaien, tot op het frame nauwkeurig</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>knippen;inkorten;korter;bijsnijden;draaien;roteren;film;clip;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nieuw venster</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Video’s inkorten, bijsnijden en draaien</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet doet één ding: het maakt een kortere, bijgesneden of gedraaide kopie van een video. Sleep een bestand naar het venster, verschuif de twee handgrepen over de filmstrip en exporteer.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Het eerste beeld van de export is het beeld dat u aan het begin van het bereik zag, en het geluid blijft waar het was.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Snijdt bij en draait in dezelfde stap, met één zorgvuldige herbemonstering.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Behoudt kleuren, hoog dynamisch bereik, geluidssporen, hoofdstukken en datums.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>Schrijft MP4 en MOV; leest wat camera’s, telefoons en schermopnameprogramma’s schrijven.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Raakt het origineel nooit aan en laat nooit een half geschreven bestand achter.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Video’s (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Openen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle bestanden (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>“%1” is de video die wordt bewerkt. Kies een andere naam.</translation>
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
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Ja</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Nee</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Sluiten</translation>
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
        <translation>Spatie</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Links</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Rechts</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Pijl omhoog</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Pijl omlaag</translation>
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
        <translation>Over Brisklet</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Controleren op updates…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Afsluiten</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Nieuw venster</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video openen…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Video sluiten</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Beginpunt instellen op afspeelkop</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Eindpunt instellen op afspeelkop</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Vorig frame</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Volgend frame</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Afspelen herhalen</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>Be&amp;stand</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Clip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Uit bestandsbeheerders verwijderen</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Aan bestandsbeheerders toevoegen</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>De items in de bestandsbeheerders konden niet worden gewijzigd: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Kort video’s in, snijdt ze bij en draait ze, tot op het frame nauwkeurig.

Vrije software onder de GNU General Public License, versie 3 of later.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Ongedaan maken: beginpunt</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Opnieuw: beginpunt</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Ongedaan maken: eindpunt</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Opnieuw: eindpunt</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Ongedaan maken: uitsnede</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Opnieuw: uitsnede</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Ongedaan maken: uitsnede opheffen</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Opnieuw: uitsnede opheffen</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Ongedaan maken: draaien</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Opnieuw: draaien</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Ongedaan maken: dempen</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Opnieuw: dempen</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Ongedaan maken: geluid aan</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Opnieuw: geluid aan</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Laatste bewerking heropenen</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Laatste export tonen</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Ongedaan maken</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Opnieuw</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Ga naar tijd…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Begin van bereik, dan begin van video</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Einde van bereik, dan einde van video</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Eén seconde terug</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Eén seconde vooruit</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Be&amp;werken</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Ga naar</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>De map “%1” bestaat niet meer.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>Er is geen bestandsbeheerder om de map “%1” te tonen.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Er worden hoogstens %1 video’s tegelijk geopend.</translation>
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
        <translation>Gebruik: brisklet [VIDEO...]
Kort video’s in. Elke VIDEO opent in een eigen venster.

  --install-quick-action  zet “Video inkorten” in bestandsbeheerders en stopt
  --help                  toont deze hulp en stopt
  --version               toont de versie en stopt
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Neerzetgebied</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Editor</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Heropenen</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>%1 exporteren…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Exportopties</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Standaardwaarden herstellen</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Formaat</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Resolutie</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Pauzeren</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Afspelen</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Geluid aan (anders bevat de export geen geluid)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Dempen</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Linksom draaien</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Uitsnede opheffen</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Bijsnijden</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>ongeveer %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Afspelen of pauzeren</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Dempen of geluid aan</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Bijsnijden of uitsnede opheffen</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Uitsnede</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2 op %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Uitsnede verplaatsen</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Rechter- of onderkant verplaatsen</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Linker- of bovenkant verplaatsen</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Uitsnede, met de muis</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>Erbinnen slepen</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Een handgreep slepen</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Grootte van uitsnede wijzigen</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc tijdens slepen</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Slepen terugdraaien</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Uitsnede, via Tab</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Pijltoetsen</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift met deze toetsen</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Tien keer zo ver</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet is al gestart, maar antwoordt niet.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Tonen</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>De server deed er te lang over.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>“%1” is geen beveiligd adres.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>De server verwijst naar “%1”, wat geen beveiligd adres is.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>De server verzendt meer dan de bedoeling is.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>De download kan niet worden opgeslagen: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>De verbinding met “%1” is niet beveiligd: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Sleep een video hierheen</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video openen…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>ingekort</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” bevat geen videospoor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>Kan “%1” niet openen: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kan “%1” niet heropenen: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>“%1” kan niet meer worden weergegeven: de decoder is onverwacht gestopt. De bewerking is niet verloren.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Er is iets misgegaan</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>Annuleren</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>De toets Pijl-omlaag opent een menu met formaten en resoluties</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Exportknop, via Tab</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Formaat en resolutie kiezen</translation>
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
        <translation>Exporteren mislukt: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Export voltooid</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Export mislukt</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Er wordt een video geëxporteerd.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Exporteren…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Export</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Exportvoortgang</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>nog ongeveer %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Origineel</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Video inkorten</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>De geselecteerde video’s in Brisklet openen</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>“%1” kon niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>“%1” kon niet worden verwijderd: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>“%1” staat niet op deze computer en geen map hier verwijst ernaar.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Ga naar tijd</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Ga naar:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Ga naar</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Dit is geen tijd. Typ er een, zoals 1:23.456, +10f of #2412.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>De video eindigt op %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>De framenummers van deze video zijn niet bekend. Typ een tijd.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Het laatste frame is #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Een tijd, een aantal frames vanaf hier of een frame: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Een tijd of een aantal frames vanaf hier: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Typ +%1f om zoveel frames verder te gaan, of #%1 voor het frame met dat nummer.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>De video begint op %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Sneltoetsen</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Actie</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Toetsen of gebaar</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Bediening</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>snelheid 1/10</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>snelheid 1/100</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>De server “%1” is niet te vinden.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>De server “%1” accepteert geen verbinding.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>De verbinding met “%1” werd verbroken.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>De server “%1” blijft eindeloos doorverwijzen.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>De server “%1” antwoordt met een fout (status %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>De verbinding met “%1” is mislukt (details: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>het certificaat is van een andere server</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>het certificaat is verlopen of nog niet geldig</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>het certificaat wordt niet vertrouwd</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>het certificaat kan niet worden gecontroleerd (details: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>“%1” kon niet worden aangemaakt: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>“%1” kon niet worden geschreven: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>“%1” kon niet worden gekopieerd: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>“%1” kon niet worden verwijderd: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Het bestaat niet.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>De locatie van het programma kon niet worden bepaald.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Beginpunt</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Afspeelkop</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Eindpunt</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Eén frame terug</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Eén frame vooruit</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Eén seconde terug</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Eén seconde vooruit</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Zo ver mogelijk terug</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Zo ver mogelijk vooruit</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Shift met deze toetsen</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>Tien keer zo ver</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Tijdlijn, met de muis</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Klikken of slepen</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Afspeelkop verplaatsen</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Een handgreep slepen</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Begin- of eindpunt verplaatsen</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Esc tijdens slepen</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Slepen terugdraaien</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Beginpunt, afspeelkop en eindpunt, via Tab</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Filmstrip wordt gemaakt…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Slepen met Shift</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>Een tiende van de muisbeweging verplaatsen</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Slepen met Shift, ver erboven of eronder</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Een honderdste van de muisbeweging verplaatsen</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Muiswiel</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Eén frame verspringen</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Muiswiel met Shift</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>Tien frames verspringen</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Muiswiel boven een handgreep</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Dat uiteinde van het bereik stapsgewijs verplaatsen</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Tijdlijn</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Bereik %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Updates</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Automatisch controleren op updates?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet kan één keer per dag kijken of er een nieuwe versie is. U kunt dit ook via het menu doen.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Controleren op updates…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>U hebt de nieuwste versie.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1 is de nieuwste beschikbare versie.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Update</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Update installeren</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Later herinneren</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Deze versie overslaan</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Er is een nieuwe versie van Brisklet beschikbaar.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 is er; u hebt %2. Wilt u de nieuwe versie installeren?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Brisklet %1 downloaden…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Het bijwerken is mislukt.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>De lijst met updates is beschadigd.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Controleren op updates is mislukt: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>De update is te groot.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>De update kon niet worden gedownload: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>De update is onvolledig en is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>De update is niet echt: de handtekening klopt niet. De update is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Er is geen programma om de update mee te installeren. U vindt de update hier: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Export stoppen en sluiten?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Stoppen en sluiten</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Doorgaan met exporteren</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>%n export stoppen en sluiten?</numerusform>
            <numerusform>%n exports stoppen en sluiten?</numerusform>
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
        <translation>%1 u</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>onbekende optie %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 krijgt geen waarde</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 heeft een waarde nodig</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 is twee keer opgegeven</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 heeft een getal nodig, niet “%2”</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 heeft een geheel getal nodig, niet “%2”</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>er ontbreekt iets: %1 verwacht</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>onverwacht argument “%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>een naam is leeg</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count heeft een getal van 1 tot en met %1 nodig</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS heeft een getal vanaf 0 nodig, niet “%1”</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop heeft X,Y,W,H nodig, niet “%1”</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop heeft breukdelen van het beeld nodig, van 0 tot 1, met een oppervlak</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format kent %1, niet “%2”</translation>
    </message>
    <message>
        <source> and </source>
        <translation> en </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>uit de naam van de uitvoer blijkt het formaat niet: voeg --format %1 toe</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> of </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 kent geen “%2”</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start mag niet negatief zijn</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end moet na --start komen</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge heeft een aantal pixels nodig</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress kent alleen json, niet “%1”</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>er is geen opdracht opgegeven</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>“%1” is geen opdracht</translation>
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
        <translation>Gebruik: brisklet-cli probe SOURCE
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
        <translation>probe      toont wat het bestand is, als één JSON-object.
filmstrip  schrijft N (12) miniaturen uit het midden van N gelijke delen als
           00.png, 01.png, ... in de map en toont hun tijden als JSON.
frame      schrijft het rechtopstaande beeld dat een speler op die tijd toont.
export     schrijft een kopie van het bestand:
  --start, --end        het deel dat blijft, in seconden (alles)
  --crop                in breukdelen van het beeld zoals getoond na --rotate,
                        vanaf de linkerbovenhoek
  --rotate              kwartslagen met de klok mee, in graden
  --mute                laat het geluid weg
  --max-short-edge      verkleint tot dit aantal pixels aan de kortste zijde
  --format              %1 (waarop de naam van de uitvoer eindigt)
  --progress json       toont per melding één JSON-regel in plaats van een balk
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        andere encoderinstellingen, voor metingen

  --help, --version     toont deze hulp of de versie en stopt

Afsluitstatus: 0 klaar; 1 mislukt; 2 verkeerd gebruik; 130 onderbroken.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Exporteren mislukt: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>Kan “%1” niet schrijven: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kan “%1” niet openen: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Kan het antwoord niet schrijven: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” bevat geen videospoor.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Kan het beeld niet als PNG schrijven.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>Kan de map “%1” niet aanmaken: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>De video heeft geen duur.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>Kan geen filmstrip van “%1” maken: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Kan het beeld niet maken: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>De menu-items konden niet worden toegevoegd: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>“Video inkorten” is toegevoegd aan bestandsbeheerders</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>onbekende optie “%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Het is geen videobestand, of het is beschadigd.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Het formaat wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>De videocodec wordt niet ondersteund.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Het is versleuteld of beveiligd tegen kopiëren.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Het bestand bestaat niet.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>U hebt geen toestemming om dit bestand te lezen.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>De bestandsnaam is te lang.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>De koppeling naar het bestand leidt nergens heen.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Het is geen gewoon bestand.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Het is een map, geen videobestand.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Het bestand is leeg.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Het bestand kan niet worden gelezen: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>De video kan niet worden gelezen: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>“%1” is na het openen gewijzigd.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Het bestand eindigt te vroeg.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>De video werd tijdens het lezen afgekapt.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>De schijf meldde een fout tijdens het lezen van de video.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Het bestand bevat geen videospoor.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Geen enkel beeld in dit bestand kan worden gedecodeerd.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Er is geen beeld op deze tijd.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>Beelden in de pixelindeling “%1” kunnen niet worden omgezet.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>De kleuren van de beelden kunnen niet worden omgezet.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>De kleuren van het beeld kunnen niet worden omgezet.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>Kan “%1” niet openen: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Het te exporteren bereik is leeg.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Het bronbestand bevat geen videospoor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>De export van deze video kon niet worden voorbereid.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Er is geen video om te exporteren.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>De video kan niet over zichzelf heen worden geëxporteerd.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Geen enkel beeld van dit bereik kan worden gedecodeerd.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Het nieuwe bestand is tijdens het schrijven beschadigd.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Een encoder die voor de export nodig is, is niet geïnstalleerd.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>De encoder %1 accepteert de instelling “%2” niet.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>“%1” wordt door een andere export geschreven.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Het onvoltooide nieuwe bestand is door een ander programma verwijderd.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>De map “%1” voor het nieuwe bestand bestaat niet.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>U hebt geen toestemming om in de map “%1” te schrijven.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>De schijf met de map “%1” is beveiligd tegen schrijven.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Een map heeft de naam van het nieuwe bestand.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Iets wat geen gewoon bestand is, heeft de naam van het nieuwe bestand.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>De naam van het nieuwe bestand is te lang.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>De schijf meldde een fout tijdens het schrijven van het nieuwe bestand.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Het nieuwe bestand kan niet worden geschreven: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Er is niet genoeg geheugen.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Er is niet genoeg ruimte op de schijf.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Het bestand zou te groot zijn voor deze schijf.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>De schijf meldde een fout.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>De media-engine kan niet worden gevonden: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet is niet volledig geïnstalleerd. Installeer het opnieuw.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet is bijgewerkt. Start het opnieuw.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>toegang geweigerd</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>bewerking niet toegestaan</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>bestand of map bestaat niet</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>is geen map</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>bestand bestaat al</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>is een map</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>ongeldig argument</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>te veel open bestanden</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>bestandssysteem is alleen-lezen</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>bestand is niet meer op het netwerk</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>time-out van de verbinding</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>apparaat of bron is bezet</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>te veel niveaus van symbolische koppelingen</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>lezend programma gestopt</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>geen ruimte meer op het apparaat</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>schijfquotum overschreden</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>invoer-/uitvoerfout</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>bestandsnaam te lang</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>fout in een externe bibliotheek</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>wordt nog niet ondersteund door FFmpeg</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>onverwachte fout (details: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>De map “%1” is er niet.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Een ander bestand heeft nu deze naam.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>De video staat niet meer in de map “%1”.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Er is niet genoeg vrije ruimte: de video vergt ongeveer %1 en er is %2 vrij.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Het systeem is te druk: het kan geen nieuwe thread starten.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>De videodecoder is onverwacht gestopt.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>De video-encoder is onverwacht gestopt. Van het nieuwe bestand blijft niets achter.</translation>
    </message>
</context>
</TS>
