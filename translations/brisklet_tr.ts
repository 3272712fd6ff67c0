<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
<context>
    <name>PackageFile</name>
    <message>
        <source>It is being downloaded already.</source>
        <extracomment>The new version of the program, by another window or session.</extracomment>
        <translation>Zaten indiriliyor.</translation>
    </message>
    <message>
        <source>The update can’t be stored: %1</source>
        <translation>Güncelleme kaydedilemiyor: %1</translation>
    </message>
</context>
<context>
    <name>Packaging</name>
    <message>
        <source>Video Trimmer</source>
        <extracomment>The kind of program, in the menus of desktops.</extracomment>
        <translation>Video Kısaltıcı</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos, exact to the frame</source>
        <translation>Videoları karesi karesine kısaltın, kırpın ve döndürün</translation>
    </message>
    <message>
        <source>cut;clip;shorten;crop;rotate;movie;mp4;mov;</source>
        <extracomment>What people search for in the menus of desktops, in any number; a semicolon after each.</extracomment>
        <translation>kes;klip;kısalt;kırp;döndür;çevir;film;video;mp4;mov;</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Yeni Pencere</translation>
    </message>
    <message>
        <source>Trim, crop and turn videos</source>
        <extracomment>These and the following stand in software centres.</extracomment>
        <translation>Videoları kısaltın, kırpın ve döndürün</translation>
    </message>
    <message>
        <source>Brisklet does one thing: it makes a shorter, cropped or turned copy of a video. Drop a file on its window, drag the two handles over the filmstrip, export.</source>
        <translation>Brisklet tek bir iş yapar: bir videonun kısaltılmış, kırpılmış veya döndürülmüş kopyasını oluşturur. Pencereye bir dosya bırakın, film şeridinin üzerindeki iki tutamağı sürükleyin, dışa aktarın.</translation>
    </message>
    <message>
        <source>The first picture of the export is the one you saw at the start of the range, and the sound stays where it was.</source>
        <translation>Dışa aktarılan ilk görüntü, aralığın başında gördüğünüz görüntüdür; ses de olduğu yerde kalır.</translation>
    </message>
    <message>
        <source>Crops and turns in the same step, with one careful resampling.</source>
        <translation>Tek ve özenli bir yeniden örneklemeyle, aynı adımda kırpar ve döndürür.</translation>
    </message>
    <message>
        <source>Keeps colours, high dynamic range, sound tracks, chapters and dates.</source>
        <translation>Renkleri, yüksek dinamik aralığı, ses izlerini, bölümleri ve tarihleri korur.</translation>
    </message>
    <message>
        <source>Writes MP4 and MOV; reads what cameras, phones and screen recorders write.</source>
        <translation>MP4 ve MOV yazar; kameraların, telefonların ve ekran kaydedicilerin yazdıklarını okur.</translation>
    </message>
    <message>
        <source>Never touches the original, and never leaves a half-written file.</source>
        <translation>Özgün dosyaya asla dokunmaz ve asla yarım kalmış dosya bırakmaz.</translation>
    </message>
</context>
<context>
    <name>QFileDialog</name>
    <message>
        <source>Videos (%1)</source>
        <extracomment>A type of files in the open panel; %1: patterns of names.</extracomment>
        <translation>Videolar (%1)</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>The title of the save panel, a noun.</extracomment>
        <translation>Dışa Aktar</translation>
    </message>
    <message>
        <source>Open</source>
        <extracomment>The title of the open panel.</extracomment>
        <translation>Aç</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tüm dosyalar (*)</translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>“%1” is the video that is being edited. Choose another name.</source>
        <translation>“%1” şu anda düzenlenen video. Başka bir ad seçin.</translation>
    </message>
</context>
<context>
    <name>QPlatformTheme</name>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>&amp;Evet</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>&amp;Hayır</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Closes a dialog that only tells something.</extracomment>
        <translation>Kapat</translation>
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
        <translation>Boşluk</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>Sol</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>Sağ</translation>
    </message>
    <message>
        <source>Alt</source>
        <translation>Alt</translation>
    </message>
    <message>
        <source>Up</source>
        <translation>Yukarı</translation>
    </message>
    <message>
        <source>Down</source>
        <translation>Aşağı</translation>
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
        <translation>Brisklet Hakkında</translation>
    </message>
    <message>
        <source>Check for Updates…</source>
        <translation>Güncellemeleri Denetle…</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Çık</translation>
    </message>
    <message>
        <source>New Window</source>
        <translation>Yeni Pencere</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video Aç…</translation>
    </message>
    <message>
        <source>Export…</source>
        <extracomment>Opens the save panel.</extracomment>
        <translation>Dışa Aktar…</translation>
    </message>
    <message>
        <source>Close Video</source>
        <translation>Videoyu Kapat</translation>
    </message>
    <message>
        <source>Set Trim Start at Playhead</source>
        <extracomment>“Trim start” is the beginning of what is kept; the playhead marks the picture that is shown.</extracomment>
        <translation>Aralık Başını Oynatma İmlecine Ayarla</translation>
    </message>
    <message>
        <source>Set Trim End at Playhead</source>
        <translation>Aralık Sonunu Oynatma İmlecine Ayarla</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Önceki Kare</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Sonraki Kare</translation>
    </message>
    <message>
        <source>Loop Playback</source>
        <extracomment>Plays what is kept again and again; can be checked.</extracomment>
        <translation>Döngüde Oynat</translation>
    </message>
    <message>
        <source>&amp;Brisklet</source>
        <extracomment>The name of the program; only the place of the accelerator is yours.</extracomment>
        <translation>&amp;Brisklet</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Dosya</translation>
    </message>
    <message>
        <source>&amp;Clip</source>
        <extracomment>The menu of what is done to the part of the video that is kept.</extracomment>
        <translation>&amp;Klip</translation>
    </message>
    <message>
        <source>Remove Finder Quick Action</source>
        <extracomment>The entries “Trim Video” in the menus of file managers. “Finder” is the file manager; name none if your language has a word for all: “Add to File Managers”.</extracomment>
        <translation>Dosya Yöneticilerinden Kaldır</translation>
    </message>
    <message>
        <source>Install Finder Quick Action</source>
        <translation>Dosya Yöneticilerine Ekle</translation>
    </message>
    <message>
        <source>Couldn&apos;t update the Quick Action: %1</source>
        <translation>Dosya yöneticilerindeki girdiler değiştirilemedi: %1</translation>
    </message>
    <message>
        <source>Brisklet %1</source>
        <extracomment>%1: the version.</extracomment>
        <translation>Brisklet %1</translation>
    </message>
    <message>
        <source>Trims, crops and turns videos, exact to the frame.

Free software under the GNU General Public License, version 3 or later.</source>
        <translation>Videoları karesi karesine kısaltır, kırpar ve döndürür.

GNU Genel Kamu Lisansı sürüm 3 veya sonrası altında özgür yazılım.</translation>
    </message>
    <message>
        <source>Undo Trim Start</source>
        <extracomment>To undo that the beginning of the kept part was moved. “Trim Start” is its name.</extracomment>
        <translation>Aralık Başını Geri Al</translation>
    </message>
    <message>
        <source>Redo Trim Start</source>
        <translation>Aralık Başını Yinele</translation>
    </message>
    <message>
        <source>Undo Trim End</source>
        <translation>Aralık Sonunu Geri Al</translation>
    </message>
    <message>
        <source>Redo Trim End</source>
        <translation>Aralık Sonunu Yinele</translation>
    </message>
    <message>
        <source>Undo Crop</source>
        <translation>Kırpmayı Geri Al</translation>
    </message>
    <message>
        <source>Redo Crop</source>
        <translation>Kırpmayı Yinele</translation>
    </message>
    <message>
        <source>Undo Remove Crop</source>
        <extracomment>To undo that the crop was removed.</extracomment>
        <translation>Kırpma Kaldırmayı Geri Al</translation>
    </message>
    <message>
        <source>Redo Remove Crop</source>
        <translation>Kırpma Kaldırmayı Yinele</translation>
    </message>
    <message>
        <source>Undo Rotate</source>
        <translation>Döndürmeyi Geri Al</translation>
    </message>
    <message>
        <source>Redo Rotate</source>
        <translation>Döndürmeyi Yinele</translation>
    </message>
    <message>
        <source>Undo Mute</source>
        <translation>Ses Kapatmayı Geri Al</translation>
    </message>
    <message>
        <source>Redo Mute</source>
        <translation>Ses Kapatmayı Yinele</translation>
    </message>
    <message>
        <source>Undo Unmute</source>
        <translation>Ses Açmayı Geri Al</translation>
    </message>
    <message>
        <source>Redo Unmute</source>
        <translation>Ses Açmayı Yinele</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klavye Kısayolları</translation>
    </message>
    <message>
        <source>Reopen Last Edit</source>
        <translation>Son Düzenlemeyi Yeniden Aç</translation>
    </message>
    <message>
        <source>Show Last Export</source>
        <translation>Son Dışa Aktarmayı Göster</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Geri Al</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Yinele</translation>
    </message>
    <message>
        <source>Go to Time…</source>
        <translation>Zamana Git…</translation>
    </message>
    <message>
        <source>Range Start, Then Start of Video</source>
        <translation>Aralık Başı, Sonra Video Başı</translation>
    </message>
    <message>
        <source>Range End, Then End of Video</source>
        <translation>Aralık Sonu, Sonra Video Sonu</translation>
    </message>
    <message>
        <source>Back One Second</source>
        <translation>Bir Saniye Geri</translation>
    </message>
    <message>
        <source>Forward One Second</source>
        <translation>Bir Saniye İleri</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>Dü&amp;zen</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <extracomment>The menu of the places that the playhead can go to.</extracomment>
        <translation>&amp;Git</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Yardım</translation>
    </message>
    <message>
        <source>The folder “%1” is no longer there.</source>
        <translation>“%1” klasörü artık yok.</translation>
    </message>
    <message>
        <source>There is no file manager to show the folder “%1”.</source>
        <translation>“%1” klasörünü gösterecek bir dosya yöneticisi yok.</translation>
    </message>
</context>
<context>
    <name>brisklet::BriskletApp</name>
    <message>
        <source>At most %1 videos are opened at once.</source>
        <extracomment>Said in the window of the last of them; the others are left out.</extracomment>
        <translation>Tek seferde en çok %1 video açılır.</translation>
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
        <translation>Kullanım: brisklet [VIDEO...]
Videoları kısaltır. Her VIDEO kendi penceresinde açılır.

  --install-quick-action  “Videoyu Kısalt”ı dosya yöneticilerine ekler ve çıkar
  --help                  bu yardımı gösterir ve çıkar
  --version               sürümü gösterir ve çıkar
</translation>
    </message>
</context>
<context>
    <name>brisklet::ContentView</name>
    <message>
        <source>Drop zone</source>
        <extracomment>For screen readers: the empty window, on which videos are dropped.</extracomment>
        <translation>Bırakma alanı</translation>
    </message>
    <message>
        <source>Editor</source>
        <extracomment>For screen readers: the window with a video.</extracomment>
        <translation>Düzenleyici</translation>
    </message>
    <message>
        <source>Open Again</source>
        <extracomment>A button: opens the video once more, after its decoder has stopped.</extracomment>
        <translation>Yeniden Aç</translation>
    </message>
</context>
<context>
    <name>brisklet::ControlsView</name>
    <message>
        <source>Export %1…</source>
        <extracomment>A button. %1: the format, and the resolution if it is not the source’s: “MP4 · 720p”.</extracomment>
        <translation>%1 Dışa Aktar…</translation>
    </message>
    <message>
        <source>Export options</source>
        <extracomment>For screen readers: the menu of formats and resolutions.</extracomment>
        <translation>Dışa aktarma seçenekleri</translation>
    </message>
    <message>
        <source>Reset to Defaults</source>
        <extracomment>Format and resolution.</extracomment>
        <translation>Öntanımlılara Sıfırla</translation>
    </message>
    <message>
        <source>Format</source>
        <extracomment>The title of a group of entries: MP4, MOV.</extracomment>
        <translation>Biçim</translation>
    </message>
    <message>
        <source>Resolution</source>
        <extracomment>The title of a group of entries: Original, 1080p, 720p …</extracomment>
        <translation>Çözünürlük</translation>
    </message>
    <message>
        <source>Pause</source>
        <extracomment>What the button does when it is pressed; so are the following.</extracomment>
        <translation>Duraklat</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Oynat</translation>
    </message>
    <message>
        <source>Unmute (audio will be removed on export)</source>
        <translation>Sesi aç (yoksa dışa aktarırken ses kaldırılacak)</translation>
    </message>
    <message>
        <source>Mute</source>
        <translation>Sesi kapat</translation>
    </message>
    <message>
        <source>Rotate left</source>
        <translation>Sola döndür</translation>
    </message>
    <message>
        <source>Remove crop</source>
        <extracomment>Commands: makes a crop frame, or removes it.</extracomment>
        <translation>Kırpmayı kaldır</translation>
    </message>
    <message>
        <source>Crop</source>
        <translation>Kırp</translation>
    </message>
    <message>
        <source>about %1</source>
        <extracomment>%1: a size, such as “46 MB”, or a time, such as “20 s”.</extracomment>
        <translation>yaklaşık %1</translation>
    </message>
    <message>
        <source>Play or pause</source>
        <translation>Oynat veya duraklat</translation>
    </message>
    <message>
        <source>Mute or unmute</source>
        <translation>Sesi kapat veya aç</translation>
    </message>
    <message>
        <source>Crop or remove the crop</source>
        <translation>Kırp veya kırpmayı kaldır</translation>
    </message>
</context>
<context>
    <name>brisklet::CropOverlayView</name>
    <message>
        <source>Crop</source>
        <extracomment>For screen readers, a noun: the frame around what is kept of the picture.</extracomment>
        <translation>Kırpma alanı</translation>
    </message>
    <message>
        <source>%1×%2 at %3, %4</source>
        <extracomment>For screen readers: width, height and the distances from left and top, in pixels.</extracomment>
        <translation>%1×%2, konum %3, %4</translation>
    </message>
    <message>
        <source>Move the crop</source>
        <translation>Kırpma alanını taşı</translation>
    </message>
    <message>
        <source>Move its right or bottom side</source>
        <translation>Sağ veya alt kenarını taşı</translation>
    </message>
    <message>
        <source>Move its left or top side</source>
        <translation>Sol veya üst kenarını taşı</translation>
    </message>
    <message>
        <source>Crop, by mouse</source>
        <translation>Kırpma alanı, fareyle</translation>
    </message>
    <message>
        <source>Drag inside it</source>
        <translation>İçinde sürükle</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Tutamağı sürükle</translation>
    </message>
    <message>
        <source>Resize the crop</source>
        <translation>Kırpma alanını boyutlandır</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Sürüklerken Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Sürüklemeyi geri al</translation>
    </message>
    <message>
        <source>Crop, reached by Tab</source>
        <translation>Kırpma alanı, Tab ile ulaşılır</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <extracomment>“Ctrl+” or “Alt+” may stand before it.</extracomment>
        <translation>Ok tuşları</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Bu tuşlarla Shift</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>On kat daha uzağa</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopApplication</name>
    <message>
        <source>Brisklet is running already, but it doesn’t answer.</source>
        <translation>Brisklet zaten çalışıyor ama yanıt vermiyor.</translation>
    </message>
</context>
<context>
    <name>brisklet::DesktopNotifications</name>
    <message>
        <source>Show</source>
        <extracomment>A button of the notification of an export that has ended: shows the window.</extracomment>
        <translation>Göster</translation>
    </message>
</context>
<context>
    <name>brisklet::Download</name>
    <message>
        <source>The server took too long.</source>
        <translation>Sunucunun yanıtı çok uzun sürdü.</translation>
    </message>
    <message>
        <source>“%1” is not a secure address.</source>
        <translation>“%1” güvenli bir adres değil.</translation>
    </message>
    <message>
        <source>The server leads to “%1”, which is not a secure address.</source>
        <translation>Sunucu “%1” adresine yönlendiriyor; bu adres güvenli değil.</translation>
    </message>
    <message>
        <source>The server sends more than it should.</source>
        <translation>Sunucu gereğinden fazlasını gönderiyor.</translation>
    </message>
    <message>
        <source>The download can’t be stored: %1</source>
        <translation>İndirilen dosya kaydedilemiyor: %1</translation>
    </message>
    <message>
        <source>The connection to “%1” isn’t secure: %2.</source>
        <translation>“%1” ile bağlantı güvenli değil: %2.</translation>
    </message>
</context>
<context>
    <name>brisklet::DropZoneView</name>
    <message>
        <source>Drop a video here</source>
        <extracomment>Under a picture of a film, in a frame that fills the window.</extracomment>
        <translation>Buraya bir video bırakın</translation>
    </message>
    <message>
        <source>Open Video…</source>
        <translation>Video Aç…</translation>
    </message>
</context>
<context>
    <name>brisklet::EditState</name>
    <message>
        <source>Trimmed</source>
        <extracomment>Follows the name of the original in the proposed name of the new file: “Holiday Trimmed.mp4”.</extracomment>
        <translation>kısaltılmış</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” video izi içermiyor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <translation>“%1” açılamadı: %2</translation>
    </message>
    <message>
        <source>Couldn’t reopen “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>“%1” yeniden açılamadı: %2</translation>
    </message>
    <message>
        <source>“%1” can’t be shown any more: its decoder has stopped unexpectedly. The edit is not lost.</source>
        <extracomment>%1: the file’s name. The decoder is the part of the program that turns the file into pictures.</extracomment>
        <translation>“%1” artık gösterilemiyor: kod çözücüsü beklenmedik şekilde durdu. Düzenleme kaybolmadı.</translation>
    </message>
</context>
<context>
    <name>brisklet::ErrorAlert</name>
    <message>
        <source>Something Went Wrong</source>
        <extracomment>The title of each alert; what went wrong stands below.</extracomment>
        <translation>Bir Şeyler Ters Gitti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>Tamam</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Dismisses an alert without doing what its other button offers.</extracomment>
        <translation>İptal</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportButton</name>
    <message>
        <source>The Down key opens a menu of formats and resolutions</source>
        <translation>Aşağı ok tuşu, biçim ve çözünürlük menüsünü açar</translation>
    </message>
    <message>
        <source>Export button, reached by Tab</source>
        <translation>Dışa aktarma düğmesi, Tab ile ulaşılır</translation>
    </message>
    <message>
        <source>Choose format and resolution</source>
        <translation>Biçim ve çözünürlük seç</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportFormat</name>
    <message>
        <source>MPEG-4 movie</source>
        <translation>MPEG-4 filmi</translation>
    </message>
    <message>
        <source>QuickTime movie</source>
        <translation>QuickTime filmi</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportJob</name>
    <message>
        <source>Export failed: %1</source>
        <translation>Dışa aktarma başarısız: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportMonitor</name>
    <message>
        <source>Export finished</source>
        <translation>Dışa aktarma bitti</translation>
    </message>
    <message>
        <source>Export failed</source>
        <translation>Dışa aktarma başarısız</translation>
    </message>
    <message>
        <source>A video is being exported.</source>
        <extracomment>Why the computer is not to sleep; some desktops show it.</extracomment>
        <translation>Bir video dışa aktarılıyor.</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportProgressView</name>
    <message>
        <source>Exporting…</source>
        <translation>Dışa aktarılıyor…</translation>
    </message>
    <message>
        <source>Export</source>
        <extracomment>A title, a noun: the act of exporting.</extracomment>
        <translation>Dışa Aktarma</translation>
    </message>
    <message>
        <source>Export progress</source>
        <translation>Dışa aktarma ilerlemesi</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>İptal</translation>
    </message>
    <message>
        <source>about %1 left</source>
        <extracomment>%1: a time with its unit, such as “20 s”; how much longer the export takes.</extracomment>
        <translation>yaklaşık %1 kaldı</translation>
    </message>
</context>
<context>
    <name>brisklet::ExportResolution</name>
    <message>
        <source>Original</source>
        <extracomment>The resolution of the export: that of the source.</extracomment>
        <translation>Özgün</translation>
    </message>
</context>
<context>
    <name>brisklet::FileManagerEntries</name>
    <message>
        <source>Trim Video</source>
        <extracomment>An entry in the menus of file managers, for the selected videos. A file is named so: no slash.</extracomment>
        <translation>Videoyu Kısalt</translation>
    </message>
    <message>
        <source>Open the selected videos in Brisklet</source>
        <translation>Seçili videoları Brisklet’te aç</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <extracomment>%1: a file’s name; %2: the reason. So it is in the next one.</extracomment>
        <translation>“%1” yazılamadı: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>“%1” kaldırılamadı: %2</translation>
    </message>
</context>
<context>
    <name>brisklet::FileUrl</name>
    <message>
        <source>“%1” is not on this computer, and no folder here leads to it.</source>
        <translation>“%1” bu bilgisayarda değil ve buradaki hiçbir klasör ona götürmüyor.</translation>
    </message>
</context>
<context>
    <name>brisklet::GoToTimePanel</name>
    <message>
        <source>Go to Time</source>
        <translation>Zamana Git</translation>
    </message>
    <message>
        <source>Go to:</source>
        <extracomment>Before a field for a time.</extracomment>
        <translation>Git:</translation>
    </message>
    <message>
        <source>Go</source>
        <extracomment>The button that goes to the time in the field.</extracomment>
        <translation>Git</translation>
    </message>
    <message>
        <source>This is no time. Type one such as 1:23.456, +10f or #2412.</source>
        <extracomment>The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Bu bir zaman değil. 1:23.456, +10f veya #2412 gibi bir şey yazın.</translation>
    </message>
    <message>
        <source>The video ends at %1.</source>
        <translation>Videonun bittiği zaman: %1.</translation>
    </message>
    <message>
        <source>The frames of this video have no known numbers. Type a time.</source>
        <translation>Bu videonun kare numaraları bilinmiyor. Bir zaman yazın.</translation>
    </message>
    <message>
        <source>The last frame is #%1.</source>
        <translation>Son kare: #%1.</translation>
    </message>
    <message>
        <source>A time, frames from here, or a frame: 1:23.456, +10f, #2412</source>
        <translation>Zaman, buradan itibaren kare sayısı veya kare numarası: 1:23.456, +10f, #2412</translation>
    </message>
    <message>
        <source>A time, or frames from here: 1:23.456, +10f</source>
        <translation>Zaman veya buradan itibaren kare sayısı: 1:23.456, +10f</translation>
    </message>
    <message>
        <source>Type +%1f to move by frames, or #%1 for the frame of that number.</source>
        <extracomment>Somebody typed “10f”: %1 is 10. The letter “f” for frames is the same in all languages.</extracomment>
        <translation>Kare sayısı kadar ilerlemek için +%1f, o numaralı kare için #%1 yazın.</translation>
    </message>
    <message>
        <source>The video starts at %1.</source>
        <translation>Videonun başladığı zaman: %1.</translation>
    </message>
</context>
<context>
    <name>brisklet::KeyboardShortcutsView</name>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Klavye Kısayolları</translation>
    </message>
    <message>
        <source>Action</source>
        <extracomment>The heads of two columns: what is done, and by which keys.</extracomment>
        <translation>Eylem</translation>
    </message>
    <message>
        <source>Keys or gesture</source>
        <translation>Tuşlar veya hareket</translation>
    </message>
    <message>
        <source>Controls</source>
        <translation>Denetimler</translation>
    </message>
</context>
<context>
    <name>brisklet::MarkerReadout</name>
    <message>
        <source>1/10 speed</source>
        <extracomment>During a fine drag: the handle moves a tenth as far as the mouse.</extracomment>
        <translation>1/10 hız</translation>
    </message>
    <message>
        <source>1/100 speed</source>
        <translation>1/100 hız</translation>
    </message>
</context>
<context>
    <name>brisklet::NetworkFailure</name>
    <message>
        <source>The server “%1” can’t be found.</source>
        <extracomment>%1: a server’s name. So it is in the following texts.</extracomment>
        <translation>“%1” sunucusu bulunamadı.</translation>
    </message>
    <message>
        <source>The server “%1” accepts no connection.</source>
        <translation>“%1” sunucusu bağlantıyı kabul etmiyor.</translation>
    </message>
    <message>
        <source>The connection to “%1” was broken off.</source>
        <translation>“%1” ile bağlantı kesildi.</translation>
    </message>
    <message>
        <source>The server “%1” redirects without end.</source>
        <translation>“%1” sunucusu durmadan yönlendiriyor.</translation>
    </message>
    <message>
        <source>The server “%1” answers with an error (status %2).</source>
        <extracomment>%2: a number, such as 404.</extracomment>
        <translation>“%1” sunucusu hatayla yanıt veriyor (durum %2).</translation>
    </message>
    <message>
        <source>The connection to “%1” failed (details: %2).</source>
        <translation>“%1” ile bağlantı kurulamadı (ayrıntılar: %2).</translation>
    </message>
    <message>
        <source>its certificate is for another server</source>
        <extracomment>What is wrong with a server, behind a colon. So it is in the following texts.</extracomment>
        <translation>sertifikası başka bir sunucuya ait</translation>
    </message>
    <message>
        <source>its certificate has expired or isn’t valid yet</source>
        <translation>sertifikasının süresi dolmuş veya henüz başlamamış</translation>
    </message>
    <message>
        <source>its certificate isn’t trusted</source>
        <translation>sertifikasına güvenilmiyor</translation>
    </message>
    <message>
        <source>its certificate can’t be verified (details: %1)</source>
        <translation>sertifikası doğrulanamıyor (ayrıntılar: %1)</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickAction</name>
    <message>
        <source>“%1” couldn’t be made: %2</source>
        <extracomment>%1: a file’s or folder’s name; %2: the reason. So it is in the next three.</extracomment>
        <translation>“%1” oluşturulamadı: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be written: %2</source>
        <translation>“%1” yazılamadı: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be copied: %2</source>
        <translation>“%1” kopyalanamadı: %2</translation>
    </message>
    <message>
        <source>“%1” couldn’t be removed: %2</source>
        <translation>“%1” kaldırılamadı: %2</translation>
    </message>
    <message>
        <source>It doesn’t exist.</source>
        <translation>Mevcut değil.</translation>
    </message>
</context>
<context>
    <name>brisklet::QuickActionInstallation</name>
    <message>
        <source>The place of the program couldn’t be found out.</source>
        <translation>Programın yeri bulunamadı.</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineMarker</name>
    <message>
        <source>Trim start</source>
        <extracomment>For screen readers: the handles on the time line. Trim start is the beginning of what is kept.</extracomment>
        <translation>Aralık başı</translation>
    </message>
    <message>
        <source>Playhead</source>
        <translation>Oynatma imleci</translation>
    </message>
    <message>
        <source>Trim end</source>
        <translation>Aralık sonu</translation>
    </message>
    <message>
        <source>One frame back</source>
        <translation>Bir kare geri</translation>
    </message>
    <message>
        <source>One frame forward</source>
        <translation>Bir kare ileri</translation>
    </message>
    <message>
        <source>One second back</source>
        <translation>Bir saniye geri</translation>
    </message>
    <message>
        <source>One second forward</source>
        <translation>Bir saniye ileri</translation>
    </message>
    <message>
        <source>As far back as possible</source>
        <translation>Olabildiğince geri</translation>
    </message>
    <message>
        <source>As far forward as possible</source>
        <translation>Olabildiğince ileri</translation>
    </message>
    <message>
        <source>Shift with these keys</source>
        <translation>Bu tuşlarla Shift</translation>
    </message>
    <message>
        <source>Ten times as far</source>
        <translation>On kat daha uzağa</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineStrip</name>
    <message>
        <source>Timeline, by mouse</source>
        <translation>Zaman çizelgesi, fareyle</translation>
    </message>
    <message>
        <source>Click or drag</source>
        <translation>Tıkla veya sürükle</translation>
    </message>
    <message>
        <source>Move the playhead</source>
        <translation>Oynatma imlecini taşı</translation>
    </message>
    <message>
        <source>Drag a handle</source>
        <translation>Tutamağı sürükle</translation>
    </message>
    <message>
        <source>Move the trim start or the trim end</source>
        <translation>Aralık başını veya sonunu taşı</translation>
    </message>
    <message>
        <source>Esc during a drag</source>
        <translation>Sürüklerken Esc</translation>
    </message>
    <message>
        <source>Take the drag back</source>
        <translation>Sürüklemeyi geri al</translation>
    </message>
    <message>
        <source>Trim start, playhead and trim end, reached by Tab</source>
        <translation>Aralık başı, oynatma imleci ve aralık sonu, Tab ile ulaşılır</translation>
    </message>
    <message>
        <source>Making the filmstrip…</source>
        <translation>Film şeridi hazırlanıyor…</translation>
    </message>
    <message>
        <source>Drag with Shift</source>
        <translation>Shift ile sürükle</translation>
    </message>
    <message>
        <source>Move a tenth as far as the pointer</source>
        <translation>İşaretçinin onda biri kadar taşı</translation>
    </message>
    <message>
        <source>Drag with Shift, far above or below</source>
        <translation>Shift ile, çok yukarıda veya aşağıda sürükle</translation>
    </message>
    <message>
        <source>Move a hundredth as far</source>
        <translation>Yüzde biri kadar taşı</translation>
    </message>
    <message>
        <source>Wheel</source>
        <extracomment>Of the mouse; or two fingers on a touchpad.</extracomment>
        <translation>Tekerlek</translation>
    </message>
    <message>
        <source>Step by a frame</source>
        <translation>Kare kare git</translation>
    </message>
    <message>
        <source>Wheel with Shift</source>
        <translation>Shift ile tekerlek</translation>
    </message>
    <message>
        <source>Step by ten frames</source>
        <translation>On karelik adımlarla git</translation>
    </message>
    <message>
        <source>Wheel over a handle</source>
        <translation>Tutamak üzerinde tekerlek</translation>
    </message>
    <message>
        <source>Step with that end of the range</source>
        <translation>Aralığın o ucunu adım adım taşı</translation>
    </message>
</context>
<context>
    <name>brisklet::TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Zaman çizelgesi</translation>
    </message>
    <message>
        <source>Range %1</source>
        <extracomment>%1: the length of the part that is kept, such as 0:00:05.298. As short as possible.</extracomment>
        <translation>Aralık %1</translation>
    </message>
</context>
<context>
    <name>brisklet::UpdateDialogs</name>
    <message>
        <source>Updates</source>
        <translation>Güncellemeler</translation>
    </message>
    <message>
        <source>Check for updates automatically?</source>
        <translation>Güncellemeler kendiliğinden denetlensin mi?</translation>
    </message>
    <message>
        <source>Brisklet can look once a day whether there is a new version. You can also check from its menu.</source>
        <translation>Brisklet günde bir kez yeni sürüm olup olmadığına bakabilir. Menüsünden siz de denetleyebilirsiniz.</translation>
    </message>
    <message>
        <source>Checking for updates…</source>
        <translation>Güncellemeler denetleniyor…</translation>
    </message>
    <message>
        <source>You’re up to date.</source>
        <translation>Brisklet güncel.</translation>
    </message>
    <message>
        <source>Brisklet %1 is the newest version available.</source>
        <translation>Brisklet %1, kullanılabilir en yeni sürüm.</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Güncelleme</translation>
    </message>
    <message>
        <source>Install Update</source>
        <translation>Güncellemeyi Kur</translation>
    </message>
    <message>
        <source>Remind Me Later</source>
        <translation>Sonra Anımsat</translation>
    </message>
    <message>
        <source>Skip This Version</source>
        <translation>Bu Sürümü Atla</translation>
    </message>
    <message>
        <source>A new version of Brisklet is available.</source>
        <translation>Brisklet’in yeni bir sürümü var.</translation>
    </message>
    <message>
        <source>Brisklet %1 is here; you have %2. Do you want to install it?</source>
        <extracomment>%1: the new version; %2: the one that is installed.</extracomment>
        <translation>Brisklet %1 çıktı; sizdeki sürüm %2. Kurmak ister misiniz?</translation>
    </message>
    <message>
        <source>Downloading Brisklet %1…</source>
        <translation>Brisklet %1 indiriliyor…</translation>
    </message>
    <message>
        <source>The update didn’t work.</source>
        <translation>Güncelleme başarısız oldu.</translation>
    </message>
</context>
<context>
    <name>brisklet::Updater</name>
    <message>
        <source>The update feed is damaged.</source>
        <translation>Güncelleme listesi hasarlı.</translation>
    </message>
    <message>
        <source>Couldn’t check for updates: %1</source>
        <translation>Güncellemeler denetlenemedi: %1</translation>
    </message>
    <message>
        <source>The update is too large.</source>
        <translation>Güncelleme çok büyük.</translation>
    </message>
    <message>
        <source>The update couldn’t be downloaded: %1</source>
        <translation>Güncelleme indirilemedi: %1</translation>
    </message>
    <message>
        <source>The update is incomplete. It hasn’t been installed.</source>
        <translation>Güncelleme eksik. Kurulmadı.</translation>
    </message>
    <message>
        <source>The update isn’t genuine: its signature is wrong. It hasn’t been installed.</source>
        <translation>Güncelleme gerçek değil: imzası yanlış. Kurulmadı.</translation>
    </message>
    <message>
        <source>There is no program to install the update with. It is here: %1</source>
        <translation>Güncellemeyi kuracak bir program yok. Güncelleme burada: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::WindowRootView</name>
    <message>
        <source>Stop the export and close?</source>
        <translation>Dışa aktarma durdurulup kapatılsın mı?</translation>
    </message>
    <message>
        <source>Stop and Close</source>
        <translation>Durdur ve Kapat</translation>
    </message>
    <message>
        <source>Keep Exporting</source>
        <extracomment>Answers “Stop the export and close?” with no.</extracomment>
        <translation>Dışa Aktarmayı Sürdür</translation>
    </message>
    <message numerus="yes">
        <source>Stop %n exports and close?</source>
        <translation>
            <numerusform>%n dışa aktarma durdurulup kapatılsın mı?</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>brisklet::approximateDuration</name>
    <message>
        <source>%1 s</source>
        <translation>%1 sn</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 dk</translation>
    </message>
    <message>
        <source>%1 h</source>
        <translation>%1 sa</translation>
    </message>
</context>
<context>
    <name>brisklet::cli::ToolText</name>
    <message>
        <source>unknown option %1</source>
        <translation>bilinmeyen seçenek %1</translation>
    </message>
    <message>
        <source>%1 takes no value</source>
        <translation>%1 değer almaz</translation>
    </message>
    <message>
        <source>%1 needs a value</source>
        <extracomment>%1: an option, such as “--start”. So it is in what follows.</extracomment>
        <translation>%1 bir değer ister</translation>
    </message>
    <message>
        <source>%1 is given twice</source>
        <translation>%1 iki kez verilmiş</translation>
    </message>
    <message>
        <source>%1 needs a number, not &quot;%2&quot;</source>
        <translation>%1 bir sayı ister, “%2” değil</translation>
    </message>
    <message>
        <source>%1 needs a whole number, not &quot;%2&quot;</source>
        <translation>%1 bir tam sayı ister, “%2” değil</translation>
    </message>
    <message>
        <source>something is missing: expected %1</source>
        <translation>eksik bir şey var: beklenen %1</translation>
    </message>
    <message>
        <source>unexpected argument &quot;%1&quot;</source>
        <translation>beklenmeyen bağımsız değişken “%1”</translation>
    </message>
    <message>
        <source>a name is empty</source>
        <translation>bir ad boş</translation>
    </message>
    <message>
        <source>--count needs a number from 1 to %1</source>
        <translation>--count 1 ile %1 arasında bir sayı ister</translation>
    </message>
    <message>
        <source>SECONDS needs a number from 0, not &quot;%1&quot;</source>
        <translation>SECONDS 0 veya daha büyük bir sayı ister, “%1” değil</translation>
    </message>
    <message>
        <source>--crop needs X,Y,W,H, not &quot;%1&quot;</source>
        <translation>--crop X,Y,W,H ister, “%1” değil</translation>
    </message>
    <message>
        <source>--crop needs fractions of the picture, from 0 to 1, with an area</source>
        <translation>--crop görüntünün 0 ile 1 arasındaki kesirlerini ister; alan boş olamaz</translation>
    </message>
    <message>
        <source>--format knows %1, not &quot;%2&quot;</source>
        <extracomment>%1: the formats, such as “mp4, mov”; %2: what was given.</extracomment>
        <translation>--format yalnızca %1 alır, “%2” değil</translation>
    </message>
    <message>
        <source> and </source>
        <translation> ve </translation>
    </message>
    <message>
        <source>the name of the output does not say which format: add --format %1</source>
        <translation>çıktının adı biçimi belirtmiyor: --format %1 ekleyin</translation>
    </message>
    <message>
        <source> or </source>
        <extracomment>Between the names of formats, of which there are two or more.</extracomment>
        <translation> veya </translation>
    </message>
    <message>
        <source>%1 knows no &quot;%2&quot;</source>
        <translation>%1 için “%2” bilinmiyor</translation>
    </message>
    <message>
        <source>--start must not be negative</source>
        <translation>--start negatif olamaz</translation>
    </message>
    <message>
        <source>--end must come after --start</source>
        <translation>--end, --start değerinden sonra gelmeli</translation>
    </message>
    <message>
        <source>--max-short-edge needs a number of pixels</source>
        <translation>--max-short-edge piksel sayısı ister</translation>
    </message>
    <message>
        <source>--progress knows json only, not &quot;%1&quot;</source>
        <translation>--progress yalnızca json alır, “%1” değil</translation>
    </message>
    <message>
        <source>no command is given</source>
        <translation>komut verilmedi</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is no command</source>
        <translation>“%1” bir komut değil</translation>
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
        <translation>Kullanım: brisklet-cli probe SOURCE
          brisklet-cli filmstrip SOURCE DIRECTORY [--count N]
          brisklet-cli frame SOURCE SECONDS OUTPUT.png
          brisklet-cli export SOURCE OUTPUT [--start S] [--end S]
                       [--crop X,Y,W,H] [--rotate DEGREES] [--max-short-edge N]
                       [--mute] [--format %1] [--progress json]
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
        <translation>probe      dosyanın ne olduğunu tek bir JSON nesnesi olarak yazdırır.
filmstrip  N (12) eşit bölümün ortalarından küçük resimleri klasöre
           00.png, 01.png, ... olarak yazar, zamanlarını JSON olarak yazdırır.
frame      bir oynatıcının o zamanda gösterdiği dik görüntüyü yazar.
export     dosyanın bir kopyasını yazar:
  --start, --end        saklanacak bölüm, saniye olarak (tamamı)
  --crop                --rotate sonrası görüntünün kesirleri olarak,
                        sol üst köşesinden başlayarak
  --rotate              saat yönünde çeyrek dönüşler, derece olarak
  --mute                sesi dışarıda bırakır
  --max-short-edge      kısa kenarı bu kadar piksele küçültür
  --format              %1 (çıktı adının sonuna göre)
  --progress json       çubuk yerine her bildirim için bir JSON satırı yazdırır
  --h264-preset, --h264-crf, --hevc-preset, --hevc-crf
                        ölçümler için başka kodlayıcı ayarları

  --help, --version     bu yardımı veya sürümü gösterir ve çıkar

Çıkış durumu: 0 tamam; 1 başarısız; 2 yanlış kullanım; 130 yarıda kesildi.
</translation>
    </message>
    <message>
        <source>Export failed: %1</source>
        <translation>Dışa aktarma başarısız: %1</translation>
    </message>
    <message>
        <source>Couldn’t write “%1”: %2.</source>
        <translation>“%1” yazılamadı: %2.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>“%1” açılamadı: %2</translation>
    </message>
    <message>
        <source>Couldn’t write the answer: %1.</source>
        <translation>Yanıt yazılamadı: %1.</translation>
    </message>
    <message>
        <source>“%1” contains no video track.</source>
        <translation>“%1” video izi içermiyor.</translation>
    </message>
    <message>
        <source>Couldn’t write the picture as PNG.</source>
        <translation>Görüntü PNG olarak yazılamadı.</translation>
    </message>
    <message>
        <source>Couldn’t make the folder “%1”: %2.</source>
        <translation>“%1” klasörü oluşturulamadı: %2.</translation>
    </message>
    <message>
        <source>It has no length.</source>
        <extracomment>A reason: it is about the video.</extracomment>
        <translation>Süresi yok.</translation>
    </message>
    <message>
        <source>Couldn’t make a filmstrip of “%1”: %2</source>
        <translation>“%1” için film şeridi oluşturulamadı: %2</translation>
    </message>
    <message>
        <source>Couldn’t make the picture: %1</source>
        <translation>Görüntü oluşturulamadı: %1</translation>
    </message>
</context>
<context>
    <name>brisklet::main</name>
    <message>
        <source>Quick Action install failed: %1</source>
        <extracomment>%1: the reasons. “Quick Action”: the entries in the menus of file managers.</extracomment>
        <translation>Dosya yöneticilerine eklenemedi: %1</translation>
    </message>
    <message>
        <source>Installed Trim Video Quick Action</source>
        <translation>“Videoyu Kısalt” dosya yöneticilerine eklendi</translation>
    </message>
    <message>
        <source>unknown option &quot;%1&quot;</source>
        <translation>bilinmeyen seçenek “%1”</translation>
    </message>
</context>
<context>
    <name>media::Error</name>
    <message>
        <source>It is not a video file, or it is damaged.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Video dosyası değil veya hasarlı.</translation>
    </message>
    <message>
        <source>Its format isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Biçimi desteklenmiyor.</translation>
    </message>
    <message>
        <source>Its video codec isn’t supported.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Video codec’i desteklenmiyor.</translation>
    </message>
    <message>
        <source>It is encrypted or copy-protected.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Şifreli veya kopya korumalı.</translation>
    </message>
    <message>
        <source>The file doesn’t exist.</source>
        <translation>Dosya yok.</translation>
    </message>
    <message>
        <source>You don’t have permission to read this file.</source>
        <translation>Bu dosyayı okuma izniniz yok.</translation>
    </message>
    <message>
        <source>The file name is too long.</source>
        <translation>Dosya adı çok uzun.</translation>
    </message>
    <message>
        <source>The link to the file leads nowhere.</source>
        <translation>Dosya bağlantısı hiçbir yere gitmiyor.</translation>
    </message>
    <message>
        <source>It is not a regular file.</source>
        <extracomment>About a file that the sentence before has named. “Regular” is the system’s word for a file that is neither a folder nor a device nor a pipe.</extracomment>
        <translation>Normal bir dosya değil.</translation>
    </message>
    <message>
        <source>It is a folder, not a video file.</source>
        <extracomment>About a file that the sentence before has named.</extracomment>
        <translation>Bu bir klasör, video dosyası değil.</translation>
    </message>
    <message>
        <source>The file is empty.</source>
        <translation>Dosya boş.</translation>
    </message>
    <message>
        <source>The file can’t be read: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Dosya okunamıyor: %1.</translation>
    </message>
    <message>
        <source>The video can’t be read: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Video okunamıyor: %1</translation>
    </message>
    <message>
        <source>“%1” was changed after it was opened.</source>
        <extracomment>%1: the file’s name.</extracomment>
        <translation>“%1” açıldıktan sonra değiştirildi.</translation>
    </message>
    <message>
        <source>The file ends too early.</source>
        <translation>Dosya beklenenden erken bitiyor.</translation>
    </message>
    <message>
        <source>The video was cut short while it was being read.</source>
        <translation>Video okunurken kısaldı.</translation>
    </message>
    <message>
        <source>The disk reported an error while the video was being read.</source>
        <translation>Video okunurken disk hata bildirdi.</translation>
    </message>
    <message>
        <source>The file contains no video track.</source>
        <translation>Dosya video izi içermiyor.</translation>
    </message>
    <message>
        <source>Not one picture in this file can be decoded.</source>
        <translation>Bu dosyadaki hiçbir görüntünün kodu çözülemiyor.</translation>
    </message>
    <message>
        <source>There is no picture at this time.</source>
        <translation>Bu zamanda görüntü yok.</translation>
    </message>
    <message>
        <source>Pictures in the pixel format “%1” cannot be converted.</source>
        <extracomment>%1: FFmpeg’s name of the format, such as “yuv420p”.</extracomment>
        <translation>“%1” piksel biçimindeki görüntüler dönüştürülemiyor.</translation>
    </message>
    <message>
        <source>The colors of the pictures cannot be converted.</source>
        <translation>Görüntülerin renkleri dönüştürülemiyor.</translation>
    </message>
    <message>
        <source>The colours of the picture cannot be converted.</source>
        <translation>Görüntünün renkleri dönüştürülemiyor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t open “%1”: %2</source>
        <extracomment>%1: the file’s name; %2: the reason, a whole sentence.</extracomment>
        <translation>“%1” açılamadı: %2</translation>
    </message>
    <message>
        <source>The range to export is empty.</source>
        <translation>Dışa aktarılacak aralık boş.</translation>
    </message>
    <message>
        <source>The source file contains no video track.</source>
        <translation>Kaynak dosya video izi içermiyor.</translation>
    </message>
    <message>
        <source>Couldn&apos;t create an export session for this video.</source>
        <translation>Bu video için dışa aktarma hazırlanamadı.</translation>
    </message>
    <message>
        <source>There is no video to export.</source>
        <translation>Dışa aktarılacak video yok.</translation>
    </message>
    <message>
        <source>The video can’t be exported over itself.</source>
        <translation>Video kendi üzerine dışa aktarılamaz.</translation>
    </message>
    <message>
        <source>Not one picture of this range can be decoded.</source>
        <translation>Bu aralıktaki hiçbir görüntünün kodu çözülemiyor.</translation>
    </message>
    <message>
        <source>The new file was damaged while it was written.</source>
        <translation>Yeni dosya yazılırken hasar gördü.</translation>
    </message>
    <message>
        <source>An encoder that the export needs isn’t installed.</source>
        <translation>Dışa aktarma için gereken bir kodlayıcı kurulu değil.</translation>
    </message>
    <message>
        <source>The encoder %1 doesn’t take the setting “%2”.</source>
        <extracomment>%1: the encoder’s name, such as “libx264”; %2: the setting, such as “crf=18”.</extracomment>
        <translation>%1 kodlayıcısı “%2” ayarını kabul etmiyor.</translation>
    </message>
    <message>
        <source>“%1” is being written by another export.</source>
        <extracomment>%1: the new file’s name.</extracomment>
        <translation>“%1” başka bir dışa aktarma tarafından yazılıyor.</translation>
    </message>
    <message>
        <source>The unfinished new file was removed by another program.</source>
        <translation>Tamamlanmamış yeni dosyayı başka bir program kaldırdı.</translation>
    </message>
    <message>
        <source>The folder “%1” for the new file doesn’t exist.</source>
        <translation>Yeni dosya için “%1” klasörü yok.</translation>
    </message>
    <message>
        <source>You don’t have permission to write to the folder “%1”.</source>
        <translation>“%1” klasörüne yazma izniniz yok.</translation>
    </message>
    <message>
        <source>The disk with the folder “%1” is write-protected.</source>
        <translation>“%1” klasörünün bulunduğu disk yazmaya karşı korumalı.</translation>
    </message>
    <message>
        <source>A folder has the name of the new file.</source>
        <translation>Yeni dosyanın adında bir klasör var.</translation>
    </message>
    <message>
        <source>Something that is not a regular file has the name of the new file.</source>
        <translation>Yeni dosyanın adında, normal dosya olmayan bir şey var.</translation>
    </message>
    <message>
        <source>The name of the new file is too long.</source>
        <translation>Yeni dosyanın adı çok uzun.</translation>
    </message>
    <message>
        <source>The disk reported an error while the new file was being written.</source>
        <translation>Yeni dosya yazılırken disk hata bildirdi.</translation>
    </message>
    <message>
        <source>The new file can’t be written: %1</source>
        <extracomment>%1: the reason, a whole sentence.</extracomment>
        <translation>Yeni dosya yazılamıyor: %1</translation>
    </message>
    <message>
        <source>There is not enough memory.</source>
        <translation>Yeterli bellek yok.</translation>
    </message>
    <message>
        <source>There is not enough space on the disk.</source>
        <translation>Diskte yeterli yer yok.</translation>
    </message>
    <message>
        <source>The file would be too large for this disk.</source>
        <translation>Dosya bu disk için çok büyük olur.</translation>
    </message>
    <message>
        <source>The disk reported an error.</source>
        <translation>Disk hata bildirdi.</translation>
    </message>
    <message>
        <source>The media engine can’t be found: %1.</source>
        <extracomment>%1: the reason, without a full stop.</extracomment>
        <translation>Ortam motoru bulunamıyor: %1.</translation>
    </message>
    <message>
        <source>Brisklet is not completely installed. Install it again.</source>
        <translation>Brisklet tam olarak kurulmamış. Yeniden kurun.</translation>
    </message>
    <message>
        <source>Brisklet has been updated. Start it again.</source>
        <translation>Brisklet güncellendi. Yeniden başlatın.</translation>
    </message>
    <message>
        <source>%1.</source>
        <extracomment>%1: a reason, which stands alone or after a colon. Only the full stop is yours.</extracomment>
        <translation>%1.</translation>
    </message>
    <message>
        <source>Permission denied</source>
        <extracomment>A reason after a colon, as the system words it; so are the following.</extracomment>
        <translation>Erişim engellendi</translation>
    </message>
    <message>
        <source>Operation not permitted</source>
        <translation>İşleme izin verilmiyor</translation>
    </message>
    <message>
        <source>No such file or directory</source>
        <translation>Böyle bir dosya veya klasör yok</translation>
    </message>
    <message>
        <source>Not a directory</source>
        <translation>Bir klasör değil</translation>
    </message>
    <message>
        <source>File exists</source>
        <translation>Dosya zaten var</translation>
    </message>
    <message>
        <source>Is a directory</source>
        <translation>Bir klasör</translation>
    </message>
    <message>
        <source>Invalid argument</source>
        <translation>Geçersiz bağımsız değişken</translation>
    </message>
    <message>
        <source>Too many open files</source>
        <translation>Çok fazla açık dosya</translation>
    </message>
    <message>
        <source>Read-only file system</source>
        <translation>Salt okunur dosya sistemi</translation>
    </message>
    <message>
        <source>Stale file handle</source>
        <extracomment>The file was on a network disk, where it is not any more.</extracomment>
        <translation>Dosya artık ağ diskinde değil</translation>
    </message>
    <message>
        <source>Connection timed out</source>
        <translation>Bağlantı zaman aşımına uğradı</translation>
    </message>
    <message>
        <source>Device or resource busy</source>
        <translation>Aygıt veya kaynak meşgul</translation>
    </message>
    <message>
        <source>Too many levels of symbolic links</source>
        <translation>Çok fazla sembolik bağ düzeyi</translation>
    </message>
    <message>
        <source>Broken pipe</source>
        <extracomment>The program that reads what is written has ended.</extracomment>
        <translation>Okuyan program sona erdi</translation>
    </message>
    <message>
        <source>No space left on device</source>
        <translation>Aygıtta boş yer kalmadı</translation>
    </message>
    <message>
        <source>Disk quota exceeded</source>
        <translation>Disk kotası aşıldı</translation>
    </message>
    <message>
        <source>Input/output error</source>
        <translation>Girdi/çıktı hatası</translation>
    </message>
    <message>
        <source>File name too long</source>
        <translation>Dosya adı çok uzun</translation>
    </message>
    <message>
        <source>Generic error in an external library</source>
        <translation>Dış kitaplıkta genel hata</translation>
    </message>
    <message>
        <source>Not yet implemented in FFmpeg, patches welcome</source>
        <translation>FFmpeg’de henüz gerçeklenmedi</translation>
    </message>
    <message>
        <source>%1</source>
        <extracomment>%1: English words of the system or of FFmpeg that have no translation. Say so: “unexpected error (details: %1)”.</extracomment>
        <translation>Beklenmeyen hata (ayrıntılar: %1)</translation>
    </message>
    <message>
        <source>The folder “%1” is not there.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>“%1” klasörü orada değil.</translation>
    </message>
    <message>
        <source>Another file has its name now.</source>
        <extracomment>About a video that the sentence before has named.</extracomment>
        <translation>Adı artık başka bir dosyada.</translation>
    </message>
    <message>
        <source>It is no longer in the folder “%1”.</source>
        <extracomment>About a video that the sentence before has named. %1: the folder’s name.</extracomment>
        <translation>Artık “%1” klasöründe değil.</translation>
    </message>
    <message>
        <source>There is not enough free space: the video takes about %1, and %2 are free.</source>
        <extracomment>%1 and %2: sizes with their units, such as “46 MB”.</extracomment>
        <translation>Yeterli boş yer yok: video yaklaşık %1 tutuyor, boş yer ise %2.</translation>
    </message>
    <message>
        <source>The system is too busy: it can’t start another thread.</source>
        <translation>Sistem çok meşgul: başka bir iş parçacığı başlatamıyor.</translation>
    </message>
    <message>
        <source>The video decoder has stopped unexpectedly.</source>
        <translation>Video kod çözücüsü beklenmedik şekilde durdu.</translation>
    </message>
    <message>
        <source>The video encoder has stopped unexpectedly. Nothing of the new file is left behind.</source>
        <translation>Video kodlayıcısı beklenmedik şekilde durdu. Yeni dosyadan geriye hiçbir şey kalmadı.</translation>
    </message>
</context>
</TS>
