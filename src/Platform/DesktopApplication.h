#pragma once

#include "Media/Threading/ThreadAffinity.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

namespace brisklet {

/// The program's presence on the session bus: one process owns its name and serves
/// org.freedesktop.Application; any later start passes its request on to that process and exits.
///
///     Unclaimed ──claim──▶ Owner ──release──▶ Unclaimed
///                            ◀───reclaim───
///
/// Calls that arrive are delivered as signals from the event loop, in the order of arrival. Main
/// thread; may be made before the application object, so that a start that hands its request over
/// needs no display.
class DesktopApplication final : public QObject {
    Q_OBJECT

public:
    /// The result of claim().
    enum class Role {
        owner,      ///< This process serves the session.
        handedOver, ///< Another process serves it and has taken the request.
        alone       ///< There is no session bus, or it does not answer.
    };

    /// `name` is the program's well-known name; its object path follows from it.
    DesktopApplication(QDBusConnection bus, const QString& name, QObject* parent = nullptr);
    ~DesktopApplication() override;

    [[nodiscard]] const QDBusConnection& bus() const { return m_bus; }

    /// Becomes the owner, or passes the request on to the owner: to open these files or, without
    /// any, to come to the front. `platformData` carries the launcher's activation token. Blocks
    /// until the owner has taken the request. If it does not answer throws std::runtime_error with
    /// a sentence for the user, rather than open a file twice.
    Role claim(const QList<QUrl>& files, const QVariantMap& platformData);

    /// Releases the name and stops serving calls. When it returns every call that had reached this
    /// process has been delivered, so the caller can decide whether it may still exit. Later calls
    /// are refused, and their senders try again.
    void release();

    /// Takes the name and serves calls again after release(), unless another process has the name.
    void reclaim();

    /// The platformData that the launcher put into the environment of this process. Call it before
    /// QApplication is constructed, which removes it from there.
    static QVariantMap launchData();

Q_SIGNALS:
    void activated(const QVariantMap& platformData);
    void filesOpened(const QList<QUrl>& files, const QVariantMap& platformData);
    void actionActivated(const QString& action, const QVariantMap& platformData);

private:
    enum class Answer { taken, refused, gone };

    Answer handOver(const QList<QUrl>& files, const QVariantMap& platformData);
    [[nodiscard]] QString ownerOfName() const;

    media::ThreadAffinity m_thread;
    QDBusConnection m_bus;
    QString m_name;
    QString m_path;
    bool m_isOwner = false;
};

} // namespace brisklet
