#include "Views/LostVideoView.h"

#include "Models/EditState.h"
#include "Views/ContentView.h"
#include "Views/Painting/LongWords.h"
#include "Views/Painting/RoundCorners.h"
#include "Views/Painting/SymbolView.h"
#include "Views/VideoArea.h"

#include <QKeyEvent>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QVBoxLayout>

#include <utility>

namespace brisklet {

namespace {

constexpr int kSymbolSide = 36;
constexpr int kSpacing = 12;
constexpr int kTextWidth = 340;
constexpr QSize kButtonSize(128, 30);
/// On black, whatever the desktop's style: the contrast is 10:1.
constexpr QRgb kInk = 0xffb4b4b4;

/// Space presses it while it has the focus, and is not the window's then.
class SpaceButton final : public QPushButton {
public:
    using QPushButton::QPushButton;

protected:
    bool event(QEvent* event) override {
        if (event->type() == QEvent::ShortcutOverride) {
            const auto* keyEvent = static_cast<QKeyEvent*>(event);
            if (keyEvent->modifiers() == Qt::NoModifier && keyEvent->key() == Qt::Key_Space)
                event->accept();
        }
        return QPushButton::event(event);
    }
};

} // namespace

LostVideoView::LostVideoView(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_symbol(new SymbolView(Symbol::exclamationTriangle, kSymbolSide)),
      m_reason(new QLabel),
      //: A button: opens the video once more, after its decoder has stopped.
      m_openAgain(new SpaceButton(ContentView::tr("Open Again"))) {
    buildLayout();
    connect(m_openAgain, &QPushButton::clicked, this, [this] { m_state->openAgain(); });
    for (const auto changed : {&EditState::lossMessageChanged, &EditState::isOpeningAgainChanged,
                               &EditState::isOpenAgainOfferedChanged})
        connect(m_state.get(), changed, this, &LostVideoView::follow);
    follow();
}

LostVideoView::~LostVideoView() {
    m_state->disconnect(this);
}

void LostVideoView::buildLayout() {
    QPalette ink;
    ink.setColor(QPalette::WindowText, QColor(kInk));
    m_symbol->setPalette(ink);
    m_reason->setPalette(ink);
    m_reason->setTextFormat(Qt::PlainText);
    m_reason->setWordWrap(true);
    m_reason->setAlignment(Qt::AlignHCenter);
    m_reason->setFixedWidth(kTextWidth);
    m_openAgain->setMinimumSize(kButtonSize);
    m_openAgain->setAutoDefault(true);
    m_openAgain->setFocusPolicy(Qt::TabFocus);

    auto* stack = new QVBoxLayout(this);
    stack->setSpacing(kSpacing);
    stack->addStretch();
    stack->addWidget(m_symbol, 0, Qt::AlignHCenter);
    stack->addWidget(m_reason, 0, Qt::AlignHCenter);
    stack->addWidget(m_openAgain, 0, Qt::AlignHCenter);
    stack->addStretch();
}

void LostVideoView::follow() {
    const auto& reason = m_state->lossMessage();
    const bool isWanted = reason && !m_state->isOpenAgainOffered() && !m_state->isOpeningAgain();
    if (isWanted) {
        m_reason->setText(withBreaksInLongWords(*reason));
        fitText();
        m_openAgain->setAccessibleDescription(*reason);
    } else if (window()->focusWidget() == m_openAgain) {
        // Hiding would pass the focus on to another control, where the same keys do other things.
        parentWidget()->setFocus(Qt::OtherFocusReason);
    }
    setVisible(isWanted);
}

/// The layout would give it the height that it has in a wider label.
void LostVideoView::fitText() {
    m_reason->setFixedHeight(m_reason->heightForWidth(kTextWidth));
}

void LostVideoView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange)
        fitText();
}

void LostVideoView::paintEvent(QPaintEvent* /*event*/) {
    QPainter painter(this);
    painter.fillRect(rect(), Qt::black);
    paintRoundCorners(painter, rect(), kVideoCornerRadius, palette().color(QPalette::Window));
}

} // namespace brisklet
