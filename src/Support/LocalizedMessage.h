#pragma once

#include "Media/Error.h"

#include <QIODevice>
#include <QString>

#include <exception>
#include <system_error>

namespace brisklet {

/// What an exception tells the person, in the language that the program speaks: the sentence of a
/// media::Error, and what() of any other, which is in that language already. Any thread.
QString localizedMessage(const std::exception& error);

/// Why the system refused something, to be put after a colon, without a full stop. Any thread.
QString localizedReason(const std::error_code& error);

/// The same for what failed last on a file. Any thread.
QString localizedReason(const QIODevice& file);

} // namespace brisklet
