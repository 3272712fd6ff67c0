#include "Views/Controls/ExportButtonAccessible.h"

#include "Views/Controls/ExportButton.h"

#include <QAccessibleWidget>
#include <QMenu>

namespace brisklet {

namespace {

/// Qt's own has the menu as its first action, and runs it in an event loop of its own, with which
/// the program that asked for it would wait until somebody closes the menu.
class ExportButtonAccessible final : public QAccessibleWidget {
public:
    explicit ExportButtonAccessible(ExportButton* button)
        : QAccessibleWidget(button, QAccessible::Button), m_button(*button) {}

    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.hasPopup = true;
        state.expandable = true;
        state.expanded = m_button.isMenuOpen();
        return state;
    }

    QString text(QAccessible::Text kind) const override {
        return kind == QAccessible::Name ? m_button.text() : QAccessibleWidget::text(kind);
    }

    int childCount() const override { return 1; }

    QAccessibleInterface* child(int index) const override {
        return index == 0 ? QAccessible::queryAccessibleInterface(m_button.menu()) : nullptr;
    }

    int indexOfChild(const QAccessibleInterface* child) const override {
        return child != nullptr && child->object() == m_button.menu() ? 0 : -1;
    }

    QStringList actionNames() const override {
        if (!m_button.isEnabled())
            return {};
        return {pressAction(), showMenuAction()};
    }

    void doAction(const QString& name) override {
        if (!m_button.isEnabled())
            return;
        if (name == pressAction())
            m_button.animateClick();
        else if (name == showMenuAction())
            m_button.popUpMenu();
    }

    QStringList keyBindingsForAction(const QString& name) const override {
        QStringList keys;
        if (name == showMenuAction()) {
            for (const QKeySequence& key : ExportButton::menuKeys())
                keys << key.toString(QKeySequence::NativeText);
        }
        return keys;
    }

private:
    /// Outlives its interface, which it owns.
    ExportButton& m_button;
};

QAccessibleInterface* makeInterface(const QString& /*className*/, QObject* object) {
    auto* button = qobject_cast<ExportButton*>(object);
    return button ? new ExportButtonAccessible(button) : nullptr;
}

} // namespace

void installExportButtonAccessibility() {
    // Installing a factory that is there already does nothing.
    QAccessible::installFactory(makeInterface);
}

} // namespace brisklet
