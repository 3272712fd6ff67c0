#pragma once

#include <QDBusConnection>
#include <QDBusVariant>
#include <QObject>

namespace brisklet {

/// Gives the program a dark palette if the desktop prefers one and Qt has not noticed: asks the
/// settings portal for the colour scheme and listens for changes. A palette of Qt's that already
/// agrees with the desktop is kept. Main thread.
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
