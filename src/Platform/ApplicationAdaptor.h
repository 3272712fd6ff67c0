#pragma once

#include "Platform/DesktopApplication.h"

#include <QDBusAbstractAdaptor>
#include <QStringList>
#include <QVariantList>

namespace brisklet {

/// Serves the D-Bus interface org.freedesktop.Application: turns each call into a signal of its
/// parent, which owns it. Main thread.
class ApplicationAdaptor final : public QDBusAbstractAdaptor {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "org.freedesktop.Application")

public:
    explicit ApplicationAdaptor(DesktopApplication* application);

    // The interface specifies the names and types.
public Q_SLOTS:
    void Activate(const QVariantMap& platformData);
    void Open(const QStringList& uris, const QVariantMap& platformData);
    void ActivateAction(const QString& action, const QVariantList& parameter,
                        const QVariantMap& platformData);

private:
    DesktopApplication* m_application;
};

} // namespace brisklet
