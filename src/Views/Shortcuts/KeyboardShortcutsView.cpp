#include "Views/Shortcuts/KeyboardShortcutsView.h"

#include "Support/MainThread.h"
#include "Views/Painting/Theme.h"
#include "Views/Shortcuts/ShortcutList.h"
#include "Views/WindowKeys.h"

#include <QDialogButtonBox>
#include <QFontMetrics>
#include <QHeaderView>
#include <QScrollBar>
#include <QShortcut>
#include <QTreeWidget>
#include <QVBoxLayout>

#include <algorithm>

namespace brisklet {

namespace {

/// Fits beside or over the smallest window; wider where the texts are.
constexpr QSize kInitialSize(520, 440);

void add(QTreeWidget& page, const ShortcutGroup& group) {
    auto* title = new QTreeWidgetItem(&page, {group.title});
    title->setFirstColumnSpanned(true);
    // Assistive technology finds the second cell though it is spanned.
    title->setData(1, Qt::AccessibleTextRole, group.title);
    title->setFont(0, theme::headlineFont(page.font()));
    for (const Shortcut& shortcut : group.shortcuts)
        new QTreeWidgetItem(title, {shortcut.effect, shortcut.keys});
}

/// Of the longest text of each column, or the longest title if that is longer.
int widthOfTexts(const QTreeWidget& page) {
    const QAbstractItemView& columns = page;
    int width = columns.sizeHintForColumn(0) + columns.sizeHintForColumn(1);
    for (int index = 0; index < page.topLevelItemCount(); ++index) {
        const QTreeWidgetItem& title = *page.topLevelItem(index);
        const QFontMetrics metrics(title.font(0));
        width = std::max(width, metrics.horizontalAdvance(title.text(0) + QStringLiteral("MM")));
    }
    return width;
}

QTreeWidget* makePage(const QList<ShortcutGroup>& groups) {
    auto* page = new QTreeWidget;
    page->setAccessibleName(KeyboardShortcutsView::tr("Keyboard Shortcuts"));
    //: The heads of two columns: what is done, and by which keys.
    page->setHeaderLabels(
        {KeyboardShortcutsView::tr("Action"), KeyboardShortcutsView::tr("Keys or gesture")});
    page->setRootIsDecorated(false);
    page->setItemsExpandable(false);
    page->setUniformRowHeights(true);
    page->setAllColumnsShowFocus(true);
    for (const ShortcutGroup& group : groups)
        add(*page, group);
    page->expandAll();
    page->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    page->setCurrentItem(page->topLevelItem(0));
    return page;
}

} // namespace

KeyboardShortcutsView::KeyboardShortcutsView(const QList<ShortcutGroup>& groups, QWidget* window)
    : QDialog(window, Qt::Dialog | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowSystemMenuHint | Qt::WindowCloseButtonHint) {
    verifyMainThread();
    setAttribute(Qt::WA_DeleteOnClose);
    setWindowTitle(tr("Keyboard Shortcuts"));
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Close);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    auto* stack = new QVBoxLayout(this);
    QTreeWidget* page = makePage(groups);
    stack->addWidget(page);
    stack->addWidget(buttons);
    const int around = stack->contentsMargins().left() + stack->contentsMargins().right() +
                       2 * page->frameWidth() + page->verticalScrollBar()->sizeHint().width();
    resize(std::max(kInitialSize.width(), widthOfTexts(*page) + around), kInitialSize.height());
    new QShortcut(kCloseKey, this, this, &QDialog::reject);
}

void KeyboardShortcutsView::openFor(QWidget& window) {
    auto* page = window.findChild<KeyboardShortcutsView*>();
    if (page == nullptr)
        page = new KeyboardShortcutsView(shortcutsOf(window), &window);
    page->show();
    page->raise();
    page->activateWindow();
}

} // namespace brisklet
