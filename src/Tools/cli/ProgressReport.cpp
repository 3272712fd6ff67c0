#include "Tools/cli/ProgressReport.h"

#include <QByteArray>
#include <QJsonDocument>
#include <QJsonObject>

#include <cmath>
#include <cstddef>
#include <cstdio>
#include <string>
#include <unistd.h>

namespace brisklet::cli {

namespace {

constexpr int kBarWidth = 40;

} // namespace

ProgressReport::ProgressReport(ExportCommand::Progress kind)
    : m_kind(kind), m_isTerminal(::isatty(STDERR_FILENO) == 1) {}

ProgressReport::~ProgressReport() {
    if (m_isBarShown)
        std::fputs("\r\033[K", stderr);
}

void ProgressReport::show(double fraction) {
    if (m_kind == ExportCommand::Progress::bar) {
        showBar(fraction);
        return;
    }
    const QJsonObject report{{QStringLiteral("progress"), fraction}};
    const QByteArray line = QJsonDocument(report).toJson(QJsonDocument::Compact) + '\n';
    // A failure to write a report does not stop the export.
    std::fputs(line.constData(), stdout);
    std::fflush(stdout);
}

void ProgressReport::showBar(double fraction) {
    if (!m_isTerminal)
        return;
    const auto filled = static_cast<std::size_t>(std::lround(fraction * kBarWidth));
    const std::string bar =
        std::string(filled, '#') + std::string(std::size_t{kBarWidth} - filled, '-');
    std::fprintf(stderr, "\r[%s] %3ld %%", bar.c_str(), std::lround(fraction * 100));
    m_isBarShown = true;
}

} // namespace brisklet::cli
