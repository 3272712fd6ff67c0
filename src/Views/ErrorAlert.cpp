#include "Views/ErrorAlert.h"

#include "Views/Painting/LongWords.h"
#include "Views/Painting/SymbolView.h"
#include "Views/Painting/Theme.h"

#include <QDialogButtonBox>
#include <QEvent>
#include <QLabel>
#include <QPushButton>
#include <QVBoxLayout>

namespace brisklet {

namespace {

constexpr int kSymbolSide = 36;
constexpr int kSpacing = 12;
constexpr int kPadding = 24;
/// Of the message, points: about sixty letters per line.
constexpr int kTextWidth = 340;
constexpr int kButtonWidth = 96;

QLabel* plainLabel() {
    auto* label = new QLabel;
    label->setTextFormat(Qt::PlainText);
    label->setWordWrap(true);
    label->setAlignment(Qt::AlignHCenter);
    label->setFixedWidth(kTextWidth);
    return label;
}

} // namespace

ErrorAlert::ErrorAlert(QWidget* window)
    : Sheet(window),
      m_symbol(new SymbolView(Symbol::exclamationTriangle, kSymbolSide)),
      m_title(plainLabel()),
      m_text(plainLabel()),
      m_buttons(new QDialogButtonBox) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    //: The title of each alert; what went wrong stands below.
    setWindowTitle(tr("Something Went Wrong"));
    m_title->setText(windowTitle());
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    m_buttons->setCenterButtons(true);
    addButton(tr("OK"), QDialogButtonBox::AcceptRole)->setDefault(true);
    connect(m_buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(m_buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    stack->setSpacing(kSpacing);
    stack->setSizeConstraint(QLayout::SetFixedSize);
    stack->addWidget(m_symbol, 0, Qt::AlignHCenter);
    stack->addWidget(m_title, 0, Qt::AlignHCenter);
    stack->addWidget(m_text, 0, Qt::AlignHCenter);
    stack->addWidget(m_buttons, 0, Qt::AlignHCenter);
    showLook();
}

QPushButton* ErrorAlert::addButton(const QString& title, QDialogButtonBox::ButtonRole role) {
    QPushButton* button = m_buttons->addButton(title, role);
    button->setMinimumWidth(kButtonWidth);
    return button;
}

void ErrorAlert::offer(const QString& action) {
    m_buttons->clear();
    //: Dismisses an alert without doing what its other button offers.
    addButton(tr("Cancel"), QDialogButtonBox::RejectRole);
    QPushButton* button = addButton(action, QDialogButtonBox::AcceptRole);
    button->setDefault(true);
    button->setFocus();
}

void ErrorAlert::setMessage(const QString& message) {
    m_message = message;
    m_text->setText(withBreaksInLongWords(message));
    setAccessibleDescription(message);
}

void ErrorAlert::showLook() {
    m_title->setFont(theme::headlineFont(font()));
    QPalette red;
    red.setColor(QPalette::WindowText, theme::red(palette()));
    m_symbol->setPalette(red);
}

void ErrorAlert::changeEvent(QEvent* event) {
    Sheet::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showLook();
}

} // namespace brisklet
