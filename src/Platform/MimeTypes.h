#pragma once

#include <QStringList>

namespace brisklet {

/// The MIME types of the files that the program opens, as in the desktop's MIME database.
const QStringList& movieMimeTypes();

} // namespace brisklet
