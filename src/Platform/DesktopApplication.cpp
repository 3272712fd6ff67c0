#include "Platform/DesktopApplication.h"

#include "Platform/ApplicationAdaptor.h"

#include <QCoreApplication>
#include <QDBusError>
#include <QDBusConnectionInterface>
#include <QDBusMessage>
#include <QDBusReply>
#include <QStringList>

#include <stdexcept>
#include <utility>

namespace brisklet {

namespace {

const QString& interfaceName() {
    static const QString name = QStringLiteral("org.freedesktop.Application");
    return name;
}

/// How often a request is sent again because the owner changed meanwhile.
constexpr int kMostAttempts = 20;
/// The owner answers from its event loop, which is never busy for anywhere near this long.
constexpr int kAnswerTimeoutMs = 20000;

[[noreturn]] void throwUnanswered() {
    // Translated by who catches it: there is no application object yet.
    throw std::runtime_error(QT_TRANSLATE_NOOP(
        "brisklet::DesktopApplication", "Brisklet is running already, but it doesn’t answer."));
}

} // namespace

DesktopApplication::DesktopApplication(QDBusConnection bus, const QString& name, QObject* parent)
    : QObject(parent),
      m_bus(std::move(bus)),
      m_name(name),
      m_path(u'/' + QString(name).replace(u'.', u'/').replace(u'-', u'_')) {
    new ApplicationAdaptor(this);
}

DesktopApplication::~DesktopApplication() {
    if (m_isOwner)
        m_bus.unregisterService(m_name);
    m_bus.unregisterObject(m_path);
}

DesktopApplication::Role DesktopApplication::claim(const QList<QUrl>& files,
                                                   const QVariantMap& platformData) {
    m_thread.check();
    // The object is registered before the name, so that the first call finds it.
    if (!m_bus.isConnected() || !m_bus.registerObject(m_path, this))
        return Role::alone;
    Answer answer = Answer::gone;
    for (int attempt = 0; attempt < kMostAttempts && m_bus.isConnected(); ++attempt) {
        m_isOwner = m_bus.registerService(m_name);
        if (m_isOwner)
            return Role::owner;
        answer = handOver(files, platformData);
        if (answer == Answer::taken) {
            m_bus.unregisterObject(m_path);
            return Role::handedOver;
        }
    }
    if (answer == Answer::refused)
        throwUnanswered();
    return Role::alone;
}

DesktopApplication::Answer DesktopApplication::handOver(const QList<QUrl>& files,
                                                        const QVariantMap& platformData) {
    const QString owner = ownerOfName();
    if (owner.isEmpty())
        return Answer::gone;
    // Sent to the process, not to the name: a call that an exiting owner did not take must not
    // reach the next owner as well as the second attempt does.
    QDBusMessage call = QDBusMessage::createMethodCall(owner, m_path, interfaceName(),
                                                       files.isEmpty() ? QStringLiteral("Activate")
                                                                       : QStringLiteral("Open"));
    if (!files.isEmpty()) {
        QStringList uris;
        for (const QUrl& file : files)
            uris << QString::fromLatin1(file.toEncoded());
        call << uris;
    }
    call << platformData;
    const QDBusMessage reply = m_bus.call(call, QDBus::Block, kAnswerTimeoutMs);
    if (reply.type() == QDBusMessage::ReplyMessage)
        return Answer::taken;
    if (ownerOfName() != owner)
        return Answer::gone;
    // An owner that was about to exit may have stayed: a call without an answer may still be
    // served.
    if (QDBusError(reply).type() == QDBusError::NoReply)
        throwUnanswered();
    return Answer::refused;
}

QString DesktopApplication::ownerOfName() const {
    const QDBusReply<QString> owner = m_bus.interface()->serviceOwner(m_name);
    return owner.isValid() ? owner.value() : QString();
}

void DesktopApplication::release() {
    m_thread.check();
    // The bus answers only after it has delivered all calls that were sent to the name, so these
    // are in the event queue now.
    if (std::exchange(m_isOwner, false))
        m_bus.unregisterService(m_name);
    // Others that looked the owner up earlier still call this process. Without the object such a
    // call is refused instead of being answered by a process that exits all the same.
    m_bus.unregisterObject(m_path);
    QCoreApplication::sendPostedEvents(this);
}

void DesktopApplication::reclaim() {
    m_thread.check();
    m_bus.registerObject(m_path, this);
    m_isOwner = m_bus.registerService(m_name);
}

QVariantMap DesktopApplication::launchData() {
    QVariantMap data;
    if (const QByteArray token = qgetenv("XDG_ACTIVATION_TOKEN"); !token.isEmpty())
        data.insert(QStringLiteral("activation-token"), QString::fromUtf8(token));
    if (const QByteArray id = qgetenv("DESKTOP_STARTUP_ID"); !id.isEmpty())
        data.insert(QStringLiteral("desktop-startup-id"), QString::fromUtf8(id));
    return data;
}

} // namespace brisklet
