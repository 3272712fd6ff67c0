#include "Views/DropZoneView.h"

#include "Models/EditState.h"
#include "Views/Painting/SymbolView.h"
#include "Views/Painting/Theme.h"

#include <QEvent>
#include <QLabel>
#include <QPainter>
#include <QPen>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr int kSpacing = 16;
constexpr int kPadding = 24;
constexpr int kSymbolSide = 48;
constexpr QSize kButtonSize(128, 30);
constexpr qreal kBorderRadius = 12;
constexpr qreal kBorderWidth = 2;
/// Points on, points off.
constexpr qreal kDash = 8;
constexpr float kLitOpacity = 0.08F;

QPen borderPen(const QColor& color) {
    QPen pen(color, kBorderWidth, Qt::CustomDashLine, Qt::FlatCap, Qt::MiterJoin);
    // A pen measures dashes in units of its width.
    pen.setDashPattern({kDash / kBorderWidth, kDash / kBorderWidth});
    return pen;
}

} // namespace

DropZoneView::DropZoneView(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_symbol(new SymbolView(Symbol::film, kSymbolSide)),
      //: Under a picture of a film, in a frame that fills the window.
      m_invitation(new QLabel(tr("Drop a video here"))) {
    auto* button = new QPushButton(tr("Open Video…"));
    button->setMinimumSize(kButtonSize);
    button->setAutoDefault(true);
    connect(button, &QPushButton::clicked, this,
            [model = std::move(state)] { model->presentOpenPanel(); });

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(2 * kPadding, 2 * kPadding, 2 * kPadding, 2 * kPadding);
    stack->setSpacing(kSpacing);
    stack->addStretch();
    stack->addWidget(m_symbol, 0, Qt::AlignHCenter);
    stack->addWidget(m_invitation, 0, Qt::AlignHCenter);
    stack->addWidget(button, 0, Qt::AlignHCenter);
    stack->addStretch();
    showFonts();
}

void DropZoneView::setLit(bool isLit) {
    if (m_isLit == isLit)
        return;
    m_isLit = isLit;
    update();
}

void DropZoneView::paintEvent(QPaintEvent* /*event*/) {
    constexpr qreal kInset = kPadding + kBorderWidth / 2;
    const QRectF border = QRectF(rect()).adjusted(kInset, kInset, -kInset, -kInset);
    const QColor accent = theme::accent(palette());
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    if (m_isLit) {
        QColor fill = accent;
        fill.setAlphaF(kLitOpacity);
        painter.setBrush(fill);
    }
    painter.setPen(borderPen(m_isLit ? accent : theme::quaternary(palette())));
    painter.drawRoundedRect(border, kBorderRadius, kBorderRadius);
}

void DropZoneView::showFonts() {
    m_invitation->setFont(theme::titleFont(font()));
    QPalette secondary;
    secondary.setColor(QPalette::WindowText, theme::secondary(palette()));
    m_invitation->setPalette(secondary);
    m_symbol->setPalette(secondary);
}

void DropZoneView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showFonts();
}

} // namespace brisklet
