#include "Platform/MimeTypes.h"

namespace brisklet {

const QStringList& movieMimeTypes() {
    static const QStringList types = {
        QStringLiteral("video/mp4"),
        QStringLiteral("video/quicktime"),
        QStringLiteral("video/x-matroska"),
        QStringLiteral("video/webm"),
        QStringLiteral("video/x-msvideo"),
        QStringLiteral("video/vnd.avi"),
        QStringLiteral("video/mpeg"),
        QStringLiteral("video/mp2t"),
        QStringLiteral("video/3gpp"),
        QStringLiteral("video/3gpp2"),
        QStringLiteral("video/mj2"),
        QStringLiteral("video/x-ms-wmv"),
        QStringLiteral("application/vnd.ms-asf"),
        QStringLiteral("video/x-flv"),
        QStringLiteral("video/ogg"),
        QStringLiteral("video/x-theora+ogg"),
        QStringLiteral("video/x-ogm+ogg"),
        QStringLiteral("video/dv"),
        QStringLiteral("application/mxf"),
    };
    return types;
}

} // namespace brisklet
