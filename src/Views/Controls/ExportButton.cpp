#include "Views/Controls/ExportButton.h"

#include "Views/Controls/ExportButtonAccessible.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Painting/ButtonPainting.h"
#include "Views/Painting/Symbols.h"
#include "Views/Painting/Theme.h"

#include <QMenu>
#include <QMouseEvent>
#include <QPainter>
#include <QPainterPath>
#include <QStyle>

#include <algorithm>
#include <array>

namespace brisklet {

namespace {

constexpr int kPadding = 12;
constexpr int kMenuWidth = 26;
constexpr qreal kChevronSide = 11;
constexpr qreal kSeamInset = 6;
constexpr int kMenuGap = 4;
constexpr float kHoverOpacity = 0.12F;
constexpr float kPressedOpacity = 0.24F;
constexpr float kSeamOpacity = 0.35F;
/// Of the focus ring from the edge, points: the ring lies on the fill, which is of its usual
/// colour.
constexpr qreal kRingInset = 2;

/// What opens the menu of a control on desktops.
constexpr std::array kMenuKeys{QKeyCombination(Qt::Key_Down), Qt::ALT | Qt::Key_Down,
                               QKeyCombination(Qt::Key_F4)};

bool opensMenu(const QKeyEvent& event) {
    const Qt::KeyboardModifiers modifiers = event.modifiers() & ~Qt::KeypadModifier;
    return std::ranges::find(kMenuKeys,
                             QKeyCombination(modifiers, static_cast<Qt::Key>(event.key()))) !=
           kMenuKeys.end();
}

} // namespace

ExportButton::ExportButton(QWidget* parent) : QToolButton(parent) {
    installExportButtonAccessibility();
    describe({});
    setPopupMode(QToolButton::MenuButtonPopup);
    setFocusPolicy(Qt::TabFocus);
    setMouseTracking(true);
    setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
}

void ExportButton::describe(const QString& forecast) {
    const QString menu = tr("The Down key opens a menu of formats and resolutions");
    setAccessibleDescription(forecast.isEmpty() ? menu : forecast + u'\n' + menu);
}

QSize ExportButton::sizeHint() const {
    return {fontMetrics().horizontalAdvance(text()) + 2 * kPadding + kMenuWidth,
            FlatButton::kHeight};
}

QRect ExportButton::menuRect() const {
    return QStyle::visualRect(layoutDirection(), rect(),
                              {width() - kMenuWidth, 0, kMenuWidth, height()});
}

QRect ExportButton::labelRect() const {
    return QStyle::visualRect(layoutDirection(), rect(), {0, 0, width() - kMenuWidth, height()});
}

void ExportButton::popUpMenu() {
    // Above the button, which is at the bottom of its window; Qt moves it if it does not fit there.
    const QSize size = menu()->sizeHint();
    const int left = isRightToLeft() ? 0 : width() - size.width();
    const QPoint corner = mapToGlobal(QPoint(left, 0));
    menu()->popup(corner - QPoint(0, size.height() + kMenuGap));
    update();
}

bool ExportButton::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride) {
        // Space presses it and Down opens its menu; neither is the window's while it has the focus.
        const auto* keyEvent = static_cast<QKeyEvent*>(event);
        const bool isSpace =
            keyEvent->modifiers() == Qt::NoModifier && keyEvent->key() == Qt::Key_Space;
        if (isSpace || opensMenu(*keyEvent))
            event->accept();
    }
    return QToolButton::event(event);
}

void ExportButton::mousePressEvent(QMouseEvent* event) {
    if (event->button() == Qt::LeftButton && menuRect().contains(event->position().toPoint())) {
        popUpMenu();
        return;
    }
    // Not QToolButton's, which opens the menu for a press where the style would draw its own arrow.
    QAbstractButton::mousePressEvent(event);
}

void ExportButton::mouseMoveEvent(QMouseEvent* event) {
    QAbstractButton::mouseMoveEvent(event);
    update();
}

void ExportButton::keyPressEvent(QKeyEvent* event) {
    if (opensMenu(*event))
        popUpMenu();
    else
        QToolButton::keyPressEvent(event);
}

bool ExportButton::isMenuOpen() const {
    return menu() && menu()->isVisible();
}

QList<QKeySequence> ExportButton::menuKeys() {
    return QList<QKeySequence>(kMenuKeys.begin(), kMenuKeys.end());
}

QList<ShortcutGroup> ExportButton::shortcutGroups() const {
    QStringList names;
    for (const QKeySequence& key : menuKeys())
        names << key.toString(QKeySequence::NativeText);
    return {{tr("Export button, reached by Tab"),
             {{names.join(QStringLiteral(", ")), tr("Choose format and resolution")}}}};
}

QPalette ExportButton::enabledPalette() const {
    QPalette result = palette();
    result.setCurrentColorGroup(QPalette::Active);
    return result;
}

void ExportButton::paintFill(QPainter& painter) const {
    QPainterPath shape;
    shape.addRoundedRect(rect(), buttonpainting::kRadius, buttonpainting::kRadius);
    painter.fillPath(shape, isEnabled() ? theme::accentFill(palette())
                                        : theme::quaternary(enabledPalette()));
    if (!isEnabled())
        return;
    // Each part is highlighted by itself.
    const QPoint pointer = mapFromGlobal(QCursor::pos());
    // While the menu has the pointer, nothing says that it has left the button.
    const bool hasPointer = underMouse() && rect().contains(pointer);
    const bool isOnMenu = menuRect().contains(pointer);
    const auto shade = [&](const QRect& part, bool isHovered, bool isPressed) {
        if (!isHovered && !isPressed)
            return;
        QColor color = theme::onAccentFill(palette());
        color.setAlphaF(isPressed ? kPressedOpacity : kHoverOpacity);
        painter.save();
        painter.setClipRect(part);
        painter.fillPath(shape, color);
        painter.restore();
    };
    shade(labelRect(), hasPointer && !isOnMenu, isDown());
    shade(menuRect(), hasPointer && isOnMenu, isMenuOpen());
}

void ExportButton::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    paintFill(painter);
    // During an export the title stays legible: grey, but not as faint as disabled text.
    const QColor ink =
        isEnabled() ? theme::onAccentFill(palette()) : theme::secondary(enabledPalette());
    painter.setPen(ink);
    painter.drawText(labelRect().adjusted(kPadding, 0, -kPadding, 0), Qt::AlignCenter, text());
    QColor seam = ink;
    seam.setAlphaF(kSeamOpacity);
    const int seamLeft = isRightToLeft() ? labelRect().left() - 1 : menuRect().left();
    painter.fillRect(QRectF(seamLeft, kSeamInset, 1, height() - 2 * kSeamInset), seam);
    const QPointF center = QRectF(menuRect()).center();
    paintSymbol(painter, Symbol::chevronDown,
                QRectF(center.x() - kChevronSide / 2, center.y() - kChevronSide / 2, kChevronSide,
                       kChevronSide),
                ink);
    if (hasFocus())
        buttonpainting::paintFocusRing(
            painter, QRectF(rect()).adjusted(kRingInset, kRingInset, -kRingInset, -kRingInset),
            ink);
}

} // namespace brisklet
