#include "Media/Error.h"
#include "Media/ExportFixture.h"
#include "Media/Mp4Boxes.h"
#include "Media/Reading/VideoReader.h"
#include "TestSupport/Fixture.h"
#include "TestSupport/MediaCache.h"
#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <gmock/gmock.h>

#include <arpa/inet.h>
#include <poll.h>
#include <sys/inotify.h>
#include <sys/socket.h>
#include <unistd.h>

/// Nothing but the named file is ever read, whatever it is called and whatever it contains.
namespace media {
namespace {

using testing::ElementsAre;
using testsupport::bigEndian;
using testsupport::Fixture;
using testsupport::makeFixture;
using testsupport::TemporaryFolder;

/// Listens on a port of the loopback interface and notices whoever connects.
class Listener {
public:
    Listener() : m_socket(::socket(AF_INET, SOCK_STREAM | SOCK_CLOEXEC, 0)) {
        sockaddr_in address = {};
        address.sin_family = AF_INET;
        address.sin_addr.s_addr = htonl(INADDR_LOOPBACK);
        socklen_t length = sizeof address;
        auto* generic = reinterpret_cast<sockaddr*>(&address);
        if (::bind(m_socket, generic, length) != 0 || ::listen(m_socket, 8) != 0 ||
            ::getsockname(m_socket, generic, &length) != 0)
            throw std::runtime_error("Cannot listen on the loopback interface.");
        m_address = "127.0.0.1:" + std::to_string(ntohs(address.sin_port));
    }

    Listener(const Listener&) = delete;
    Listener& operator=(const Listener&) = delete;

    ~Listener() { ::close(m_socket); }

    /// "127.0.0.1:port"
    [[nodiscard]] const std::string& address() const { return m_address; }

    /// Whether anybody has connected, or is about to. A connection to the own machine is complete
    /// before connect() returns, so nobody can be late.
    [[nodiscard]] bool wasReached() const {
        pollfd polled = {m_socket, POLLIN, 0};
        return ::poll(&polled, 1, 0) > 0;
    }

private:
    int m_socket;
    std::string m_address;
};

/// Notices every opening of a file, by whomever.
class OpenWatch {
public:
    explicit OpenWatch(const std::filesystem::path& path)
        : m_descriptor(::inotify_init1(IN_NONBLOCK | IN_CLOEXEC)) {
        if (::inotify_add_watch(m_descriptor, path.c_str(), IN_OPEN | IN_ACCESS) < 0)
            throw std::runtime_error("Cannot watch " + path.string());
    }

    OpenWatch(const OpenWatch&) = delete;
    OpenWatch& operator=(const OpenWatch&) = delete;

    ~OpenWatch() { ::close(m_descriptor); }

    [[nodiscard]] bool wasTriggered() const {
        pollfd polled = {m_descriptor, POLLIN, 0};
        return ::poll(&polled, 1, 0) > 0;
    }

private:
    int m_descriptor;
};

/// Opens a file, and if it opens reads all of it and exports it.
std::string useAsSource(const std::filesystem::path& path) {
    const TemporaryFolder folder;
    return errorOf([&] {
        const auto asset = Asset::open(path);
        const auto tracks = asset->tracks(MediaType::video);
        if (tracks.empty())
            throw Error(ErrorKind::noVideoTrack);
        VideoReader reader(asset, tracks[0]);
        while (reader.next()) {
        }
        StagedExportSession(compositionOf(asset), folder / "out.mp4", FileType::mpeg4).run();
    });
}

class SourceIsolation : public testing::Test {
protected:
    void SetUp() override {
        std::filesystem::copy_file(makeFixture({.container = "ts", .duration = 1}).path,
                                   m_folder / "secret.ts");
        std::filesystem::copy_file(makeFixture({.duration = 1}).path, m_folder / "secret.mp4");
    }

    /// A file of this content is refused, under every name that could lend it meaning, and nothing
    /// that it names is touched.
    void expectRefused(const std::string& contents, const std::vector<std::string>& extensions) {
        const OpenWatch stream(m_folder / "secret.ts");
        const OpenWatch movie(m_folder / "secret.mp4");
        for (const std::string& extension : extensions) {
            const auto path = m_folder / ("crafted." + extension);
            writeFile(path, contents);
            EXPECT_EQ(useAsSource(path), "It is not a video file, or it is damaged.") << path;
        }
        EXPECT_FALSE(stream.wasTriggered());
        EXPECT_FALSE(movie.wasTriggered());
        EXPECT_FALSE(m_listener.wasReached());
    }

    [[nodiscard]] std::string url(const std::string& name) const {
        return "http://" + m_listener.address() + "/" + name;
    }

    [[nodiscard]] std::string secret(const char* extension) const {
        return m_folder / (std::string("secret.") + extension);
    }

    TemporaryFolder m_folder;
    Listener m_listener;
};

TEST_F(SourceIsolation, theWatchesNoticeWhatTheyAreThereFor) {
    const OpenWatch watch(m_folder / "secret.ts");
    EXPECT_FALSE(watch.wasTriggered());
    static_cast<void>(contentsOf(m_folder / "secret.ts"));
    EXPECT_TRUE(watch.wasTriggered());

    EXPECT_FALSE(m_listener.wasReached());
    const auto result = testsupport::runProcess(
        {"ffmpeg", "-nostdin", "-v", "quiet", "-rw_timeout", "100000", "-i", url("a.mp4")});
    EXPECT_NE(result.exitStatus, 0);
    EXPECT_TRUE(m_listener.wasReached());
}

TEST_F(SourceIsolation, hlsPlaylistsAreRefused) {
    const auto playlist = [](const std::string& target) {
        return "#EXTM3U\n#EXT-X-VERSION:3\n#EXT-X-TARGETDURATION:2\n#EXT-X-MEDIA-SEQUENCE:0\n"
               "#EXTINF:1.0,\n" +
               target + "\n#EXT-X-ENDLIST\n";
    };
    const std::vector<std::string> extensions = {"mp4", "m3u8", "m3u", "ts"};
    expectRefused(playlist(url("a.ts")), extensions);
    expectRefused(playlist(secret("ts")), extensions);
    expectRefused(playlist("secret.ts"), extensions);
    expectRefused(playlist("file:" + secret("ts")), extensions);
    expectRefused("#EXTM3U\n#EXT-X-STREAM-INF:BANDWIDTH=1\n" + url("a.m3u8") + "\n", extensions);
    expectRefused("#EXTM3U\n#EXT-X-KEY:METHOD=AES-128,URI=\"" + url("key") +
                      "\"\n#EXTINF:1,\nsecret.ts\n#EXT-X-ENDLIST\n",
                  extensions);
}

TEST_F(SourceIsolation, dashManifestsAreRefused) {
    const auto manifest = [](const std::string& target) {
        return "<?xml version=\"1.0\"?>\n"
               "<MPD xmlns=\"urn:mpeg:dash:schema:mpd:2011\" type=\"static\" "
               "profiles=\"urn:mpeg:dash:profile:isoff-on-demand:2011\" "
               "mediaPresentationDuration=\"PT1S\" minBufferTime=\"PT1S\"><Period>"
               "<AdaptationSet mimeType=\"video/mp4\" contentType=\"video\">"
               "<Representation id=\"1\" bandwidth=\"100000\" codecs=\"avc1.64000d\" width=\"320\" "
               "height=\"240\"><BaseURL>" +
               target + "</BaseURL></Representation></AdaptationSet></Period></MPD>\n";
    };
    expectRefused(manifest(url("a.mp4")), {"mp4", "mpd", "xml"});
    expectRefused(manifest(secret("mp4")), {"mp4", "mpd", "xml"});
    expectRefused(manifest("secret.mp4"), {"mp4", "mpd", "xml"});
}

TEST_F(SourceIsolation, scriptsThatJoinFilesAreRefused) {
    for (const std::string& target : {secret("ts"), std::string("secret.ts"), url("a.ts")})
        expectRefused("ffconcat version 1.0\nfile '" + target + "'\nduration 1\n",
                      {"mp4", "ffconcat", "txt", "concat"});
}

TEST_F(SourceIsolation, sessionDescriptionsAreRefused) {
    const std::string port = m_listener.address().substr(m_listener.address().find(':') + 1);
    expectRefused("v=0\r\no=- 0 0 IN IP4 127.0.0.1\r\ns=x\r\nc=IN IP4 127.0.0.1\r\nt=0 0\r\n"
                  "m=video " +
                      port + " RTP/AVP 96\r\na=rtpmap:96 H264/90000\r\n",
                  {"mp4", "sdp"});
    expectRefused("[Reference]\r\nRef1=" + url("a.wmv") + "\r\n", {"asf", "wmv", "asx"});
    expectRefused("rtsp://" + m_listener.address() + "/a\n", {"mp4", "rtsp", "mov"});
    expectRefused("<smil><body><video src=\"" + url("a.mp4") + "\"/></body></smil>",
                  {"mp4", "smil", "imf"});
}

TEST_F(SourceIsolation, filterScriptsAndOtherDevicesAreRefused) {
    expectRefused("movie=" + secret("mp4") + "\n", {"mp4", "lavfi"});
    expectRefused("av1=\nLWPlaylist\n", {"mp4", "vpy"});
    expectRefused("import vapoursynth\n", {"vpy", "mp4"});
    expectRefused("AviSource(\"" + secret("mp4") + "\")\n", {"avs", "mp4"});
    expectRefused("TITLE \"x\"\nFILE \"secret.mp4\" WAVE\n", {"cue", "mp4"});
}

/// An alias record that names a file: `levels` 1 for one beside the file that holds the record, 0
/// for an absolute path.
std::string aliasRecord(const std::string& path, int levels) {
    std::string record(10, '\0');
    record += std::string(1 + 27, '\0') + std::string(12, '\0');
    record += std::string(1 + 63, '\0') + std::string(16, '\0');
    record += std::string(1, '\0') + static_cast<char>(levels);
    record += std::string(1, '\0') + static_cast<char>(levels);
    record += std::string(16, '\0');
    const std::string padded = path + std::string(path.size() % 2, '\0');
    record += std::string("\0\2", 2) + bigEndian(padded.size()).substr(2) + padded;
    return record + std::string("\xff\xff\0\0", 4);
}

/// A movie without media whose media lies in another file, as `reference` (a box) says.
std::string movieReferringTo(const std::string& movie, const std::string& reference) {
    std::string bytes = movie;
    testsupport::replaceBox(
        bytes, {"moov", "trak", "mdia", "minf", "dinf", "dref"},
        testsupport::makeBox("dref", std::string(4, '\0') + bigEndian(1) + reference));
    const auto media = testsupport::findBox(bytes, {"mdat"});
    // Emptied, not removed: the places of its samples stay what they are in the other file.
    std::fill_n(bytes.begin() + static_cast<std::ptrdiff_t>(media->offset + media->headerSize),
                media->size - media->headerSize, '\0');
    return bytes;
}

TEST_F(SourceIsolation, moviesThatKeepTheirMediaElsewhereAreNotFollowed) {
    const auto movie = testsupport::cachedMedia(
        "index-last-no-sound.mov", {"-f", "lavfi", "-i", "testsrc2=s=160x120:d=1", "-an"});
    std::filesystem::copy_file(movie, m_folder / "secret.mov");
    const std::string bytes = contentsOf(movie);
    const std::string alias = movieReferringTo(
        bytes, testsupport::makeBox("alis", std::string(4, '\0') + aliasRecord("x/secret.mov", 1)));
    writeFile(m_folder / "alias.mov", alias);
    const auto framesSeenBy = [&](const std::vector<std::string>& options) {
        std::vector<std::string> arguments = {"ffmpeg", "-nostdin", "-v", "error"};
        arguments.insert(arguments.end(), options.begin(), options.end());
        arguments.insert(arguments.end(), {"-i", m_folder / "alias.mov", "-f", "framecrc", "-"});
        return testsupport::runProcess(arguments).output;
    };
    EXPECT_THAT(framesSeenBy({"-enable_drefs", "1"}), testing::HasSubstr("0,         24,"))
        << "the reference is no trap: it leads nowhere";

    const OpenWatch watch(m_folder / "secret.mov");
    EXPECT_NE(useAsSource(m_folder / "alias.mov"), "");
    EXPECT_FALSE(watch.wasTriggered());

    const std::string flags(4, '\0');
    for (const std::string& reference :
         {testsupport::makeBox("alis", flags + aliasRecord((m_folder / "secret.mov").string(), 0)),
          testsupport::makeBox("url ", flags + "file://" + (m_folder / "secret.mov").string() +
                                           std::string(1, '\0')),
          testsupport::makeBox("url ", flags + url("secret.mov") + std::string(1, '\0')),
          testsupport::makeBox("rsrc", flags + aliasRecord("x/secret.mov", 1))}) {
        writeFile(m_folder / "other.mov", movieReferringTo(bytes, reference));
        static_cast<void>(useAsSource(m_folder / "other.mov"));
        EXPECT_FALSE(watch.wasTriggered());
        EXPECT_FALSE(m_listener.wasReached());
    }
}

/// Files are opened by names in the folder that the process is in, as a shell hands them over.
TEST_F(SourceIsolation, namesThatLookLikeAddressesArePlainNames) {
    const Fixture fixture = makeFixture({.duration = 1});
    const TemporaryFolder names;
    const std::filesystem::path before = std::filesystem::current_path();
    std::filesystem::current_path(names.path());
    for (const std::string& name :
         {std::string("http:x.mp4"), std::string("concat:a|b"), std::string("file:secret.mp4"),
          std::string("subfile,,start,0,end,0,,:x.mp4"), std::string("data:text,x"),
          std::string("pipe:0"), std::string("frame%03d.png"), std::string("frame%03d.mp4"),
          std::string("-i"), std::string("*.mp4"), std::string("tcp:") + m_listener.address(),
          std::string("async:cache:x.mp4"), std::string("lavfi"), std::string("a.m3u8"),
          std::string("a.mpd"), std::string("a.sdp"), std::string("a.ffconcat")}) {
        SCOPED_TRACE(name);
        std::filesystem::copy_file(fixture.path, name);
        EXPECT_EQ(Asset::open(name)->tracks(MediaType::video).size(), 1U);
        std::filesystem::create_directory("out");
        exportRange(name, 0, 0.2, std::filesystem::path("out") / name);
        EXPECT_THAT(namesIn("out"), ElementsAre(name));
        std::filesystem::remove_all("out");
        std::filesystem::remove(name);
    }
    std::filesystem::current_path(before);
    EXPECT_FALSE(m_listener.wasReached());
}

TEST_F(SourceIsolation, addressesAreNoFiles) {
    const OpenWatch watch(m_folder / "secret.mp4");
    for (const std::string& name :
         {url("a.mp4"), "tcp://" + m_listener.address(), "file://" + secret("mp4"),
          "file:" + secret("mp4"), "concat:" + secret("mp4"),
          "subfile,,start,0,end,0,,:" + secret("mp4"), "rtsp://" + m_listener.address() + "/a",
          std::string("data:video/mp4;base64,AAAA"), std::string("pipe:0")})
        EXPECT_EQ(useAsSource(name), "The file doesn’t exist.") << name;
    EXPECT_FALSE(watch.wasTriggered());
    EXPECT_FALSE(m_listener.wasReached());
}

/// A numbered name is one picture, not the first of a sequence.
TEST_F(SourceIsolation, numberedPicturesAreNoSequence) {
    const auto picture = testsupport::cachedMedia(
        "still.png", {"-f", "lavfi", "-i", "testsrc2=s=64x48:d=1", "-frames:v", "1"});
    for (const char* name : {"frame%03d.png", "frame001.png", "frame002.png"})
        std::filesystem::copy_file(picture, m_folder / name);
    const OpenWatch watch(m_folder / "frame002.png");
    EXPECT_EQ(useAsSource(m_folder / "frame%03d.png"), "The file contains no video track.");
    EXPECT_EQ(useAsSource(m_folder / "frame001.png"), "The file contains no video track.");
    EXPECT_FALSE(watch.wasTriggered());
}

} // namespace
} // namespace media
