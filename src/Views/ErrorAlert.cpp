#include "Views/ErrorAlert.h"

#include "Views/Painting/SymbolView.h"
#include "Views/Painting/Theme.h"

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

/// The same text with places for line breaks inside words that are longer than a line: a file name
/// can have 255 letters and no space.
QString withBreaksInLongWords(const QString& text) {
    constexpr int kLongestWord = 40;
    QString result;
    int wordLength = 0;
    for (const QChar letter : text) {
        wordLength = letter.isSpace() ? 0 : wordLength + 1;
        if (wordLength > kLongestWord && !letter.isLowSurrogate()) {
            result += QChar(0x200b);
            wordLength = 1;
        }
        result += letter;
    }
    return result;
}

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
      m_text(plainLabel()) {
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowModality(Qt::WindowModal);
    //: The title of each alert; what went wrong stands below.
    setWindowTitle(tr("Something Went Wrong"));
    m_title->setText(windowTitle());
    m_text->setTextInteractionFlags(Qt::TextSelectableByMouse);
    auto* button = new QPushButton(tr("OK"));
    button->setMinimumWidth(kButtonWidth);
    button->setDefault(true);
    connect(button, &QPushButton::clicked, this, &QDialog::accept);

    auto* stack = new QVBoxLayout(this);
    stack->setContentsMargins(kPadding, kPadding, kPadding, kPadding);
    stack->setSpacing(kSpacing);
    stack->setSizeConstraint(QLayout::SetFixedSize);
    stack->addWidget(m_symbol, 0, Qt::AlignHCenter);
    stack->addWidget(m_title, 0, Qt::AlignHCenter);
    stack->addWidget(m_text, 0, Qt::AlignHCenter);
    stack->addWidget(button, 0, Qt::AlignHCenter);
    showLook();
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
