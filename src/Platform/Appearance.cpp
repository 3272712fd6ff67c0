#include "Platform/Appearance.h"

#include "Support/MainThread.h"

#include <QApplication>
#include <QDBusMessage>
#include <QDBusPendingCallWatcher>
#include <QDBusPendingReply>
#include <QPalette>

#include <utility>

namespace brisklet {

namespace {

/// Names and values of the settings portal's interface.
constexpr auto kService = "org.freedesktop.portal.Desktop";
constexpr auto kPath = "/org/freedesktop/portal/desktop";
constexpr auto kInterface = "org.freedesktop.portal.Settings";
constexpr auto kGroup = "org.freedesktop.appearance";
constexpr auto kKey = "color-scheme";
constexpr uint kPrefersDark = 1;

bool isDark(const QPalette& palette) {
    return palette.color(QPalette::Window).lightness() <
           palette.color(QPalette::WindowText).lightness();
}

void setInk(QPalette& palette, const QColor& ink, const QColor& faint) {
    for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText,
                            QPalette::ToolTipText, QPalette::BrightText}) {
        palette.setColor(role, ink);
        palette.setColor(QPalette::Disabled, role, faint);
    }
    palette.setColor(QPalette::PlaceholderText, faint);
}

QPalette darkPalette() {
    // QPalette derives the shades of edges from these two.
    QPalette palette(QColor(0x38, 0x38, 0x3d), QColor(0x24, 0x24, 0x28));
    setInk(palette, QColor(0xf2, 0xf2, 0xf4), QColor(0x85, 0x85, 0x8c));
    palette.setColor(QPalette::Base, QColor(0x1b, 0x1b, 0x1e));
    palette.setColor(QPalette::AlternateBase, QColor(0x22, 0x22, 0x26));
    palette.setColor(QPalette::ToolTipBase, QColor(0x3c, 0x3c, 0x42));
    palette.setColor(QPalette::Highlight, QColor(0x3d, 0x96, 0xe0));
    palette.setColor(QPalette::HighlightedText, Qt::white);
    palette.setColor(QPalette::Disabled, QPalette::Highlight, QColor(0x50, 0x50, 0x57));
    palette.setColor(QPalette::Link, QColor(0x6a, 0xb4, 0xf5));
    palette.setColor(QPalette::LinkVisited, QColor(0xb9, 0x97, 0xe6));
    return palette;
}

} // namespace

Appearance::Appearance(QDBusConnection bus, QObject* parent)
    : QObject(parent), m_bus(std::move(bus)) {
    verifyMainThread();
    // Without this QtDBus does not find the slot: the type of its parameter is not registered.
    qRegisterMetaType<QDBusVariant>();
    m_bus.connect(QLatin1String(kService), QLatin1String(kPath), QLatin1String(kInterface),
                  QStringLiteral("SettingChanged"), this,
                  SLOT(settingChanged(QString, QString, QDBusVariant)));
    ask();
}

void Appearance::ask() {
    auto message =
        QDBusMessage::createMethodCall(QLatin1String(kService), QLatin1String(kPath),
                                       QLatin1String(kInterface), QStringLiteral("Read"));
    message << QString::fromLatin1(kGroup) << QString::fromLatin1(kKey);
    auto* watcher = new QDBusPendingCallWatcher(m_bus.asyncCall(message), this);
    connect(watcher, &QDBusPendingCallWatcher::finished, this, [this, watcher] {
        const QDBusPendingReply<QDBusVariant> reply = *watcher;
        if (reply.isValid())
            settingChanged(QString::fromLatin1(kGroup), QString::fromLatin1(kKey), reply.value());
        watcher->deleteLater();
    });
}

void Appearance::settingChanged(const QString& group, const QString& key,
                                const QDBusVariant& value) {
    if (group != QLatin1String(kGroup) || key != QLatin1String(kKey))
        return;
    QVariant scheme = value.variant();
    // The reply to "Read" wraps the value in one variant more than the signal does.
    if (scheme.canConvert<QDBusVariant>())
        scheme = scheme.value<QDBusVariant>().variant();
    apply(scheme.toUInt());
}

void Appearance::apply(uint scheme) {
    const bool wantsDark = scheme == kPrefersDark;
    if (wantsDark && !isDark(QApplication::palette())) {
        m_isOverriding = true;
        QApplication::setPalette(darkPalette());
    } else if (!wantsDark && m_isOverriding) {
        m_isOverriding = false;
        QApplication::setPalette(QPalette());
    }
}

} // namespace brisklet
