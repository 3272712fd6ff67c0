#pragma once

#include "HttpServer.h"
#include "Platform/Updater/Updater.h"
#include "QtSupport/EventPump.h"

#include <QDir>
#include <QFile>
#include <QSettings>
#include <QTemporaryDir>

#include <gtest/gtest.h>
#include <sodium.h>

#include <functional>
#include <memory>
#include <optional>
#include <utility>

namespace brisklet {

/// Remembers what the user would see, and answers as the test says.
class FakeDriver final : public UpdateDriver {
public:
    void askForAutomaticChecks(std::function<void(bool)> answer) override {
        automaticAnswer = std::move(answer);
    }

    void showChecking(std::function<void()> cancelChecking) override {
        cancel = std::move(cancelChecking);
        ++checkingCount;
    }

    void showUpToDate(const QString& /*currentVersion*/) override { isUpToDate = true; }

    void showUpdate(const AppcastItem& item, const QString& /*currentVersion*/,
                    std::function<void(UpdateChoice)> answer) override {
        offered = item;
        choose = std::move(answer);
    }

    void showDownload(const AppcastItem& /*item*/, std::function<void()> cancelDownload) override {
        cancel = std::move(cancelDownload);
    }

    void showDownloaded(qint64 bytes) override { downloaded = bytes; }

    void showFailure(const QString& message) override { failure = message; }

    void dismiss() override {}

    bool openPackage(const QString& file) override {
        opened = file;
        return true;
    }

    void forget() {
        automaticAnswer = {};
        checkingCount = 0;
        isUpToDate = false;
        offered.reset();
        downloaded = 0;
        failure.clear();
        opened.clear();
    }

    bool isSettled() const { return isUpToDate || offered || !failure.isEmpty(); }

    std::function<void(bool)> automaticAnswer;
    std::function<void()> cancel;
    std::function<void(UpdateChoice)> choose;
    int checkingCount = 0;
    bool isUpToDate = false;
    std::optional<AppcastItem> offered;
    qint64 downloaded = 0;
    QString failure;
    QString opened;
};

/// An updater, its user, and a server with one newer release.
class UpdaterTest : public testing::Test {
protected:
    UpdaterTest() {
        EXPECT_GE(sodium_init(), 0);
        crypto_sign_keypair(bytes(m_publicKey), bytes(m_secretKey));
        m_configuration = {
            .feed = m_server.url(QStringLiteral("/feed.xml")),
            .publicKey = m_publicKey,
            .currentVersion = QStringLiteral("1.2"),
            .systemVersion = QStringLiteral("12"),
            .downloadFolder = m_folder.filePath(QStringLiteral("updates")),
            .settings = std::make_shared<QSettings>(
                m_folder.filePath(QStringLiteral("updates.ini")), QSettings::IniFormat)};
        m_server.answers[QStringLiteral("/brisklet_1.3_amd64.deb")] = {.body = m_package};
        serveFeed(item("1.3"));
    }

    static unsigned char* bytes(QByteArray& array) {
        return reinterpret_cast<unsigned char*>(array.data());
    }

    QByteArray signatureOf(QByteArray package) {
        QByteArray signature(crypto_sign_BYTES, '\0');
        crypto_sign_detached(bytes(signature), nullptr, bytes(package),
                             static_cast<unsigned long long>(package.size()), bytes(m_secretKey));
        return signature.toBase64();
    }

    QByteArray enclosure(qint64 length, const QByteArray& signature) const {
        return "<enclosure url=\"" +
               m_server.url(QStringLiteral("/brisklet_1.3_amd64.deb")).toEncoded() +
               "\" length=\"" + QByteArray::number(length) + "\" sparkle:edSignature=\"" +
               signature + "\" type=\"application/vnd.debian.binary-package\"/>";
    }

    QByteArray item(const QByteArray& version, const QByteArray& more = {}) {
        return "<item><sparkle:version>" + version + "</sparkle:version>" +
               "<sparkle:shortVersionString>" + version + " beta</sparkle:shortVersionString>" +
               "<description><![CDATA[<h1>New</h1><p>Faster &amp; <b>smaller</b></p>]]>"
               "</description>" +
               more + enclosure(m_package.size(), signatureOf(m_package)) + "</item>";
    }

    void serveFeed(const QByteArray& items) {
        m_server.answers[QStringLiteral("/feed.xml")] = {
            .body = "<?xml version=\"1.0\"?><rss version=\"2.0\" "
                    "xmlns:sparkle=\"http://www.andymatuschak.org/xml-namespaces/sparkle\">"
                    "<channel><title>Brisklet</title>" +
                    items + "</channel></rss>"};
    }

    /// What a check by command comes to.
    void check() {
        m_updater = std::make_unique<Updater>(m_configuration, m_driver, false);
        m_updater->checkForUpdates();
        EXPECT_EQ(m_driver.checkingCount, 1);
        ASSERT_TRUE(testsupport::pumpUntil([this] { return m_driver.isSettled(); }));
    }

    /// What choosing to install comes to.
    void install() {
        check();
        ASSERT_TRUE(m_driver.offered);
        m_driver.choose(UpdateChoice::install);
        ASSERT_TRUE(testsupport::pumpUntil(
            [this] { return !m_driver.opened.isEmpty() || !m_driver.failure.isEmpty(); }));
    }

    void expectNothingChanged() {
        EXPECT_EQ(m_driver.opened, QString());
        EXPECT_TRUE(
            QDir(m_configuration.downloadFolder).entryList(QDir::Files | QDir::Hidden).isEmpty());
        EXPECT_TRUE(m_updater->canCheckForUpdates());
    }

    QByteArray m_publicKey = QByteArray(crypto_sign_PUBLICKEYBYTES, '\0');
    QByteArray m_secretKey = QByteArray(crypto_sign_SECRETKEYBYTES, '\0');
    QByteArray m_package = QByteArray("a package ").repeated(100000);
    QTemporaryDir m_folder;
    testsupport::HttpServer m_server;
    FakeDriver m_driver;
    UpdaterConfiguration m_configuration;
    std::unique_ptr<Updater> m_updater;
};

} // namespace brisklet
