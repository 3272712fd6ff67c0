#pragma once

#include "Platform/DesktopApplication.h"

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantList>

namespace brisklet {

/// The interface org.freedesktop.Application on the bus; every call becomes a signal of its owner.
/// Owned by it. Main thread.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(DesktopApplication* application);

    // The names and types are the interface's own.
public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    DesktopApplication* m_application;
};

} // namespace brisklet
