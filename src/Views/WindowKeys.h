#pragma once

#include <QtCore/qnamespace.h>

namespace brisklet {

/// The keys of commands that work in a window and in the sheet over it.
inline constexpr QKeyCombination kCloseKey = Qt::CTRL | Qt::Key_W;
inline constexpr QKeyCombination kQuitKey = Qt::CTRL | Qt::Key_Q;

} // namespace brisklet
