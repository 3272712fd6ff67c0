#pragma once

#include "Media/Asset.h"

#include <QByteArray>
#include <QString>

#include <filesystem>
#include <memory>
#include <stop_token>
#include <string>

namespace brisklet::cli {

/// The file's name for people.
std::string shownName(const std::filesystem::path& path);

/// Opens a source. Throws CommandError; media::Cancelled.
std::shared_ptr<const media::Asset> openSource(const std::filesystem::path& path,
                                               const std::stop_token& stop);

/// Throws CommandError unless all of it is written.
void writeFile(const std::filesystem::path& path, const QByteArray& content);
void writeToStandardOutput(const QByteArray& content);

} // namespace brisklet::cli
