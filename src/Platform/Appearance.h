#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace brisklet {

/// Gives the program a dark look while the desktop wants one and Qt did not notice: asks the
/// settings portal for its colour scheme, and listens for changes. Where the palette that Qt found
/// already is as the desktop wants it, it stays. Main thread.
class Appearance final : public QObject {
    Q_OBJECT

public:
    /// Needs a QApplication. The answer arrives later; without a portal nothing changes.
    explicit Appearance(QDBusConnection bus, QObject* parent = nullptr);

private:
    Q_SLOT void settingChanged(const QString& group, const QString& key, const QDBusVariant& value);
    void ask();
    void apply(uint scheme);

    QDBusConnection m_bus;
    bool m_isOverriding = false;
};

} // namespace brisklet
