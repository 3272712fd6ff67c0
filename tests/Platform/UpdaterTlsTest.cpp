#include "TestSupport/Process.h"
#include "UpdaterFixture.h"

#include <QSslCertificate>
#include <QSslKey>
#include <QSslSocket>

namespace brisklet {
namespace {

using testsupport::runProcess;

/// The server speaks HTTPS, under certificates that are made here.
class UpdaterTlsTest : public UpdaterTest {
protected:
    void SetUp() override {
        if (!QSslSocket::supportsSsl() || !runProcess({"openssl", "version"}).succeeded())
            GTEST_SKIP() << "Qt's TLS backend or openssl is not here";
        ASSERT_TRUE(
            openssl({"req", "-x509", "-newkey", "rsa:2048", "-nodes", "-days", "2", "-subj",
                     "/CN=An authority", "-keyout", file("ca.key"), "-out", file("ca.pem")}));
    }

    ~UpdaterTlsTest() override { QSslConfiguration::setDefaultConfiguration(m_usual); }

    [[nodiscard]] std::string file(const char* name) const {
        return m_folder.filePath(QString::fromLatin1(name)).toStdString();
    }

    static bool openssl(std::vector<std::string> arguments) {
        arguments.insert(arguments.begin(), "openssl");
        return runProcess(arguments).succeeded();
    }

    /// Gives the server a certificate of the authority, for such a name ("IP:127.0.0.1").
    bool identify(const std::string& name) {
        const bool isMade = openssl({"req", "-newkey", "rsa:2048", "-nodes", "-subj",
                                     "/CN=A server", "-addext", "subjectAltName=" + name, "-keyout",
                                     file("server.key"), "-out", file("server.csr")}) &&
                            openssl({"x509", "-req", "-days", "1", "-copy_extensions", "copy",
                                     "-in", file("server.csr"), "-CA", file("ca.pem"), "-CAkey",
                                     file("ca.key"), "-out", file("server.pem")});
        QFile key(m_folder.filePath(QStringLiteral("server.key")));
        if (!isMade || !key.open(QIODevice::ReadOnly))
            return false;
        QSslConfiguration identity;
        identity.setLocalCertificate(
            QSslCertificate::fromPath(m_folder.filePath(QStringLiteral("server.pem"))).value(0));
        identity.setPrivateKey(QSslKey(&key, QSsl::Rsa));
        m_server.identity = identity;
        m_configuration.feed = m_server.url(QStringLiteral("/feed.xml"));
        serveFeed(item("1.3"));
        return !identity.localCertificate().isNull() && !identity.privateKey().isNull();
    }

    /// As if the system's administrator had installed it.
    void trustAuthority() {
        QSslConfiguration configuration = m_usual;
        configuration.addCaCertificates(m_folder.filePath(QStringLiteral("ca.pem")));
        QSslConfiguration::setDefaultConfiguration(configuration);
    }

    QSslConfiguration m_usual = QSslConfiguration::defaultConfiguration();
};

TEST_F(UpdaterTlsTest, takesAnUpdateFromAServerThatTheSystemTrusts) {
    ASSERT_TRUE(identify("IP:127.0.0.1"));
    trustAuthority();
    install();
    EXPECT_EQ(m_driver.failure, QString());
    QFile package(m_driver.opened);
    ASSERT_TRUE(package.open(QIODevice::ReadOnly));
    EXPECT_EQ(package.readAll(), m_package);
}

TEST_F(UpdaterTlsTest, refusesAServerThatNobodyTrusts) {
    ASSERT_TRUE(identify("IP:127.0.0.1"));
    check();
    EXPECT_EQ(m_driver.failure,
              QStringLiteral("Couldn’t check for updates: The connection to “127.0.0.1” isn’t "
                             "secure: its certificate isn’t trusted."));
    EXPECT_EQ(m_server.requestCount, 0) << "It was told what is asked for.";
    expectNothingChanged();
}

TEST_F(UpdaterTlsTest, refusesAServerWithTheCertificateOfAnother) {
    ASSERT_TRUE(identify("DNS:updates.invalid"));
    trustAuthority();
    check();
    EXPECT_TRUE(m_driver.failure.contains(QStringLiteral("its certificate is for another server")))
        << m_driver.failure.toStdString();
    EXPECT_EQ(m_server.requestCount, 0);
    expectNothingChanged();
}

} // namespace
} // namespace brisklet
