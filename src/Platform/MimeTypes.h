#pragma once

#include <QStringList>

namespace brisklet {

/// The types of the files that the program opens, by their names in the desktop's database.
const QStringList& movieMimeTypes();

} // namespace brisklet
