#include "Platform/LauncherProgress.h"

#include "Support/MainThread.h"

#include <QDBusMessage>
#include <QString>
#include <QVariantMap>

#include <cmath>
#include <utility>

namespace brisklet {

namespace {

/// Smaller steps would not be visible.
constexpr double kSmallestStep = 0.005;

} // namespace

LauncherProgress::LauncherProgress(QDBusConnection bus) : m_bus(std::move(bus)) {}

void LauncherProgress::show(std::optional<double> fraction) {
    verifyMainThread();
    const bool isSame = fraction.has_value() == m_shown.has_value() &&
                        (!fraction || std::abs(*fraction - *m_shown) < kSmallestStep);
    if (isSame)
        return;
    m_shown = fraction;
    QDBusMessage update = QDBusMessage::createSignal(
        QStringLiteral("/com/quorvan/brisklet/launcherentry"),
        QStringLiteral("com.canonical.Unity.LauncherEntry"), QStringLiteral("Update"));
    update << QStringLiteral("application://com.quorvan.brisklet.desktop")
           << QVariantMap{{QStringLiteral("progress"), fraction.value_or(0)},
                          {QStringLiteral("progress-visible"), fraction.has_value()}};
    m_bus.send(update);
}

} // namespace brisklet
