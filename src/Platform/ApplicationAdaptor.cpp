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
        // Percent-encoded, so that file names that are not valid text arrive unchanged.
        const QUrl url = QUrl::fromEncoded(uri.toUtf8());
        if (url.isValid() && !url.isEmpty())
            files << url;
        else if (!uri.isEmpty())
            // Kept, so that a window tells the user that there is no such file.
            files << urlOf(uri.toStdString());
    }
    Q_EMIT m_application->filesOpened(files, platformData);
}

void ApplicationAdaptor::ActivateAction(const QString& action, const QVariantList& /*parameter*/,
                                        const QVariantMap& platformData) {
    Q_EMIT m_application->actionActivated(action, platformData);
}

} // namespace brisklet
