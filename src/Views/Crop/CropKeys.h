#pragma once

#include "Views/Crop/CropGeometry.h"
#include "Views/Shortcuts/ShortcutSource.h"

#include <QPointF>
#include <QtCore/qnamespace.h>

#include <optional>

namespace brisklet {

/// What a key does to the crop: the same as a drag by that many points of the screen.
struct CropKey {
    /// Points.
    QPointF translation;
    /// The handle that is dragged; none moves the whole crop.
    std::optional<CropHandle> handle;

    /// An arrow key goes one point in its direction, with Shift ten. By itself it moves the crop,
    /// with Ctrl the right or bottom side, with Alt the left or top side. None for other keys.
    static std::optional<CropKey> of(int key, Qt::KeyboardModifiers modifiers);
    /// All of these keys, for people.
    static QList<Shortcut> shortcuts();

    friend bool operator==(const CropKey&, const CropKey&) = default;
};

} // namespace brisklet
