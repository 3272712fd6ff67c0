#include "UpdaterFixture.h"

#include <QDirIterator>

#include <array>
#include <chrono>
#include <random>
#include <string>

namespace brisklet {
namespace {

using namespace std::chrono_literals;
using testsupport::HttpAnswer;
using testsupport::pumpUntil;

/// Whatever the server does, a check ends with a sentence or with the genuine package, and nothing
/// is left but that.
class UpdaterWireTest : public UpdaterTest {
protected:
    UpdaterWireTest() {
        m_configuration.longestSilence = 200ms;
        m_configuration.longestWait = 1s;
    }

    /// Checks, and installs what is offered.
    void tryToUpdate() {
        m_driver.forget();
        check();
        if (!m_driver.offered)
            return;
        m_driver.choose(UpdateChoice::install);
        ASSERT_TRUE(pumpUntil(
            [this] { return !m_driver.opened.isEmpty() || !m_driver.failure.isEmpty(); }));
    }

    void expectGenuineOrNothing() {
        EXPECT_LE(m_driver.downloaded, m_package.size());
        EXPECT_TRUE(m_updater->canCheckForUpdates());
        QDirIterator files(m_folder.path(), QDir::Files | QDir::Hidden | QDir::System,
                           QDirIterator::Subdirectories);
        while (files.hasNext()) {
            const QString name = files.next();
            const bool isSettings = name.endsWith(QStringLiteral("/updates.ini"));
            EXPECT_TRUE(isSettings || name == m_driver.opened) << name.toStdString();
        }
        if (m_driver.opened.isEmpty())
            return;
        QFile opened(m_driver.opened);
        ASSERT_TRUE(opened.open(QIODevice::ReadOnly));
        EXPECT_TRUE(opened.readAll() == m_package);
        EXPECT_TRUE(opened.remove());
    }

    QByteArray feed() const { return m_server.answers[feedPath()].body; }

    static QString feedPath() { return QStringLiteral("/feed.xml"); }

    static QString packagePath() { return QStringLiteral("/brisklet_1.3_amd64.deb"); }
};

QByteArray chunk(const QByteArray& body) {
    return QByteArray::number(body.size(), 16) + "\r\n" + body + "\r\n";
}

/// A zlib stream that is a thousandth of what it becomes.
QByteArray bomb() {
    constexpr qsizetype kLengthOfQt = 4;
    static const QByteArray stream = qCompress(QByteArray(64 << 20, ' '), 9).mid(kLengthOfQt);
    return stream;
}

/// Wrong answers of a server, one per seed.
class WrongAnswer {
public:
    WrongAnswer(unsigned seed, QByteArray body, QByteArray path)
        : m_chance(seed), m_body(std::move(body)), m_path(std::move(path)) {}

    HttpAnswer make() {
        alterBody();
        const QByteArray status = statusLine();
        QByteArray headers = length();
        const int headerCount = number(0, 3);
        for (int count = 0; count < headerCount; ++count)
            headers += header();
        QByteArray all = status + "\r\n" + headers + "\r\n" + m_body;
        if (number(0, 5) == 0)
            all.truncate(number(0, static_cast<int>(all.size())));
        // In at most a few hundred pieces, and the short ones byte by byte.
        const qsizetype piece = number(0, 2) == 0 ? all.size() / 400 + 1 : 0;
        return {.raw = all, .piece = piece, .staysOpen = number(0, 9) == 0};
    }

private:
    int number(int least, int most) {
        return std::uniform_int_distribution<int>(least, most)(m_chance);
    }

    template<std::size_t count>
    QByteArray oneOf(const std::array<QByteArray, count>& list) {
        return list.at(static_cast<std::size_t>(number(0, static_cast<int>(count) - 1)));
    }

    void alterBody() {
        const auto size = static_cast<int>(m_body.size());
        switch (number(0, 7)) {
        case 0:
            m_body.truncate(number(0, size));
            break;
        case 1:
            m_body[number(0, size - 1)] = static_cast<char>(number(0, 255));
            break;
        case 2:
            m_body += m_body;
            break;
        case 3:
            m_body = bomb();
            break;
        case 4:
            m_body = chunk(m_body) + "0\r\n\r\n";
            break;
        case 5:
            m_body = "ffffffffffffffff\r\n" + m_body;
            break;
        case 6:
            for (char& byte : m_body)
                byte = static_cast<char>(m_chance());
            break;
        default:
            break;
        }
    }

    QByteArray statusLine() {
        static const std::array<QByteArray, 16> lines{
            "HTTP/1.1 200 OK",           "HTTP/1.1 200 OK",
            "HTTP/1.1 200 OK",           "HTTP/1.0 200",
            "HTTP/9.9 200 OK",           "HTTP/1.1 206 Partial Content",
            "HTTP/1.1 204 No Content",   "HTTP/1.1 304 Not Modified",
            "HTTP/1.1 302 Found",        "HTTP/1.1 401 Unauthorized",
            "HTTP/1.1 500 <b>&amp;</b>", "HTTP/1.1 99999999999 OK",
            "HTTP/1.1 100 Continue",     "ICY 200 OK",
            QByteArray("\0\0\0\0", 4),   "",
        };
        return oneOf(lines);
    }

    QByteArray length() {
        const QByteArray right = QByteArray::number(m_body.size());
        const std::array<QByteArray, 9> lengths{
            right, right, right, "-1", "0", "9223372036854775807", "1e3", right + "0", ""};
        const QByteArray chosen = oneOf(lengths);
        return chosen.isEmpty() ? chosen : "Content-Length: " + chosen + "\r\n";
    }

    QByteArray header() {
        const std::array<QByteArray, 20> headers{
            "Content-Length: 17",
            "Transfer-Encoding: chunked",
            "Transfer-Encoding: chunked, chunked",
            "Content-Encoding: deflate",
            "Content-Encoding: gzip",
            "Content-Encoding: br",
            "Content-Range: bytes 5-4/3",
            "Content-Type: text/html; charset=\xff",
            "Content-Disposition: attachment; filename=\"../../../escaped\"",
            "Location: " + m_path,
            "Location: file:///etc/passwd",
            "Location: ftp://127.0.0.1/a",
            "Location: data:text/plain,hello",
            "Location: //updates.invalid/",
            "Location:",
            "WWW-Authenticate: Basic realm=\"<b>\"",
            "Set-Cookie: " + QByteArray(5000, 'a') + "=b",
            "X-Long: " + QByteArray(300'000, 'x'),
            "a line without a colon",
            QByteArray("X-Zero: \0\1\2", 11),
        };
        return oneOf(headers) + "\r\n";
    }

    std::mt19937 m_chance;
    QByteArray m_body;
    QByteArray m_path;
};

TEST_F(UpdaterWireTest, survivesAHundredWrongFeeds) {
    const QByteArray whole = feed();
    for (unsigned seed = 0; seed < 100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        m_server.answers[feedPath()] = WrongAnswer(seed, whole, "/feed.xml").make();
        ASSERT_NO_FATAL_FAILURE(tryToUpdate());
        expectGenuineOrNothing();
    }
}

TEST_F(UpdaterWireTest, survivesAHundredWrongPackages) {
    m_package = m_package.left(2000);
    serveFeed(item("1.3"));
    for (unsigned seed = 1000; seed < 1100; ++seed) {
        SCOPED_TRACE("seed " + std::to_string(seed));
        m_server.answers[packagePath()] =
            WrongAnswer(seed, m_package, "/brisklet_1.3_amd64.deb").make();
        ASSERT_NO_FATAL_FAILURE(tryToUpdate());
        expectGenuineOrNothing();
    }
}

TEST_F(UpdaterWireTest, fetchesPackagesFromNoOtherPlaceThanTheWeb) {
    const QByteArray own = m_server.url(QString()).toEncoded();
    const QByteArray signature = signatureOf(m_package);
    for (const QByteArray& address :
         {QByteArray("file:///etc/passwd"), QByteArray("ftp://127.0.0.1/a"), QByteArray("qrc:/a"),
          QByteArray("data:text/plain,hello"), QByteArray("javascript:a()"),
          QByteArray("/etc/passwd"), QByteArray("//updates.invalid/a"), QByteArray("http:///a"),
          QByteArray("https://"), own + "/..%2f..%2fescaped", own + "/%00", own + "/%0a",
          own + "/..", own + "/" + QByteArray(5000, 'a'), own + "/?/../../escaped"}) {
        SCOPED_TRACE(address.left(60).toStdString());
        serveFeed("<item><sparkle:version>1.3</sparkle:version><enclosure url=\"" + address +
                  "\" length=\"" + QByteArray::number(m_package.size()) +
                  "\" sparkle:edSignature=\"" + signature + "\"/></item>");
        ASSERT_NO_FATAL_FAILURE(tryToUpdate());
        EXPECT_EQ(m_driver.opened, QString());
        expectGenuineOrNothing();
    }
}

TEST_F(UpdaterWireTest, expandsNoMoreThanItMayTake) {
    m_server.answers[feedPath()] = {.body = bomb(), .headers = "Content-Encoding: deflate\r\n"};
    tryToUpdate();
    EXPECT_TRUE(m_driver.failure.startsWith(QStringLiteral("Couldn’t check for updates: ")));
    expectGenuineOrNothing();
}

TEST_F(UpdaterWireTest, doesNotWaitForAFeedThatComesByteByByteForEver) {
    m_configuration.longestSilence = 1h;
    m_configuration.longestWait = 100ms;
    m_server.answers[feedPath()] = {.body = " ", .isEndless = true};
    tryToUpdate();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: The server took too long."));
    expectGenuineOrNothing();
}

TEST_F(UpdaterWireTest, doesNotWaitForAPackageForEver) {
    m_package = "a small package";
    serveFeed(item("1.3"));
    m_configuration.longestSilence = 1h;
    m_configuration.longestWait = 500ms;
    m_server.answers[packagePath()] = {.isSilent = true};
    tryToUpdate();
    EXPECT_EQ(m_driver.failure, QStringLiteral("The update couldn’t be downloaded: The server took "
                                               "too long."));
    expectGenuineOrNothing();
}

} // namespace
} // namespace brisklet
