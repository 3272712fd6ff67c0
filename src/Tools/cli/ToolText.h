#pragma once

#include "Media/Error.h"

#include <QCoreApplication>
#include <QString>

#include <string>
#include <vector>

namespace brisklet::cli {

/// The context of the tool's messages for people.
struct ToolText {
    Q_DECLARE_TR_FUNCTIONS(brisklet::cli::ToolText)
};

/// A message with its arguments, whose bytes stay as they are, text or not.
inline std::string message(const QString& text, const std::vector<std::string>& arguments = {}) {
    return media::filled(text.toStdString(), arguments);
}

} // namespace brisklet::cli
