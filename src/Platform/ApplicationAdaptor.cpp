#include "Platform/ApplicationAdaptor.h"

#include "Support/FileUrl.h"

namespace brisklet {

ApplicationAdaptor::ApplicationAdaptor(DesktopApplication* application)
    : QDBusAbstractAdaptor(application), m_application(application) {}

void ApplicationAdaptor::Activate(const QVariantMap& platformData) {
    Q_EMIT m_application->activated(platformData);
}

void ApplicationAdaptor::Open(const QStringList& uris, const QVariantMap& platformData) {
    QList<QUrl> files;
    for (const QString& uri : uris) {
        // Encoded, so that names that are no text arrive as they are.
        const QUrl url = QUrl::fromEncoded(uri.toUtf8());
        if (url.isValid() && !url.isEmpty())
            files << url;
        else if (!uri.isEmpty())
            // Not to be passed over in silence: that there is no such file is told in a window.
            files << urlOf(uri.toStdString());
    }
    Q_EMIT m_application->filesOpened(files, platformData);
}

void ApplicationAdaptor::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                        const QVariantMap& platformData) {
    Q_EMIT m_application->actionActivated(action, platformData);
}

} // namespace brisklet
