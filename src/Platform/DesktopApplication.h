#pragma once

#include "Media/Threading/ThreadAffinity.h"

#include <QDBusConnection>
#include <QList>
#include <QObject>
#include <QUrl>
#include <QVariantMap>

namespace brisklet {

/// The program as the desktop's session knows it: one process owns its name on the session bus and
/// serves org.freedesktop.Application; a later start hands over what it was asked for, and ends.
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
    /// How a start goes on.
    enum class Role {
        owner,      ///< This process serves the session.
        handedOver, ///< Another one does and has taken the request.
        alone       ///< There is no session bus, or it does not answer.
    };

    /// `name` is the program's well-known name; its object path follows from it.
    DesktopApplication(QDBusConnection bus, const QString& name, QObject* parent = nullptr);
    ~DesktopApplication() override;

    [[nodiscard]] const QDBusConnection& bus() const { return m_bus; }

    /// Becomes the owner, or hands the request over: files to open, or none to come to the front.
    /// `platformData` carries the launcher's activation token. Blocks until the other process has
    /// taken the request. Throws std::runtime_error with a sentence for the user where that one
    /// does not answer, so that no file is opened twice.
    Role claim(const QList<QUrl>& files, const QVariantMap& platformData);

    /// Gives the name back and serves no more calls. Every call that reached this process before
    /// has been delivered when this returns: the owner looks then whether it still may end. Later
    /// ones are refused, and whoever made them starts again.
    void release();

    /// Serves again after release(), and takes the name, unless another process has it by now.
    void reclaim();

    /// What the launcher put into the environment of this start, for platformData. To be asked
    /// before QApplication exists, which takes it away.
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
