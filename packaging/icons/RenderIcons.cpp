#include <QCoreApplication>
#include <QDir>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

namespace {

/// Below this the drawing with fewer details is the clearer one.
constexpr int kSmallestDetailed = 32;

bool render(const QString& drawing, int size, const QString& file) {
    QSvgRenderer renderer(drawing);
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    QPainter painter(&image);
    painter.setRenderHint(QPainter::Antialiasing);
    renderer.render(&painter);
    painter.end();
    return renderer.isValid() && image.save(file);
}

} // namespace

/// Renders the application's icon in the sizes that icon themes have: render-icons FOLDER TARGET.
int main(int argc, char** argv) {
    const QCoreApplication application(argc, argv);
    const QStringList arguments = QCoreApplication::arguments();
    if (arguments.size() != 3) {
        std::fputs("usage: render-icons FOLDER TARGET\n", stderr);
        return 2;
    }
    const QString name = QStringLiteral("/com.quorvan.brisklet");
    for (const int size : {16, 22, 24, 32, 48, 64, 128, 256, 512}) {
        const QString variant =
            size < kSmallestDetailed ? QStringLiteral("-small.svg") : QStringLiteral(".svg");
        const QString folder = QStringLiteral("%1/%2x%2/apps").arg(arguments[2]).arg(size);
        if (!QDir().mkpath(folder) ||
            !render(arguments[1] + name + variant, size, folder + name + QStringLiteral(".png"))) {
            std::fprintf(stderr, "render-icons: the icon of %d pixels can't be made\n", size);
            return 1;
        }
    }
    return 0;
}
