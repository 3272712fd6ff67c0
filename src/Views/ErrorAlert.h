#pragma once

#include "Views/Sheet.h"

#include <QDialogButtonBox>

class QLabel;
class QPushButton;

namespace brisklet {

class SymbolView;

/// Tells the user what went wrong, over the window that it went wrong in, and may offer to do
/// something about it. Modal to that window, deletes itself when it is dismissed by a button or by
/// Escape. Main thread.
class ErrorAlert final : public Sheet {
    Q_OBJECT

public:
    explicit ErrorAlert(QWidget* window);

    /// Text as it is: what looks like markup in the name of a file is not.
    void setMessage(const QString& message);

    /// Offers to do something, by a default button of that title. The alert is accepted by it, and
    /// rejected by the other one. Without an offer its one button accepts it.
    void offer(const QString& action);

    [[nodiscard]] const QString& message() const { return m_message; }

protected:
    void changeEvent(QEvent* event) override;

private:
    QPushButton* addButton(const QString& title, QDialogButtonBox::ButtonRole role);
    void showLook();

    SymbolView* m_symbol;
    QLabel* m_title;
    QLabel* m_text;
    QDialogButtonBox* m_buttons;
    QString m_message;
};

} // namespace brisklet
