#include "Views/ErrorAlert.h"

#include <QAbstractButton>
#include <QLabel>

namespace brisklet {

namespace {

/// The same text, but with places to break a line inside words of more than a line's length: the
/// name of a file can have 255 letters and no space.
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

} // namespace

ErrorAlert::ErrorAlert(QWidget* window) : QMessageBox(window) {
    setAttribute(Qt::WA_DeleteOnClose);
    setIcon(QMessageBox::Warning);
    setWindowModality(Qt::WindowModal);
    setWindowTitle(tr("Something Went Wrong"));
    setText(tr("Something Went Wrong"));
    setStandardButtons(QMessageBox::Ok);
    button(QMessageBox::Ok)->setText(tr("OK"));
    setEscapeButton(QMessageBox::Ok);
}

void ErrorAlert::setMessage(const QString& message) {
    setInformativeText(withBreaksInLongWords(message));
    for (QLabel* label : findChildren<QLabel*>())
        label->setTextFormat(Qt::PlainText);
}

} // namespace brisklet
