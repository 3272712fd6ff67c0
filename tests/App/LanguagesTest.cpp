#include "AppFixture.h"

#include "LosableVideos/LosableVideos.h"
#include "Platform/Updater/Appcast.h"
#include "Platform/Updater/UpdateDialogs.h"
#include "QtSupport/PseudoLanguage.h"
#include "Support/Translations.h"
#include "Views/ContentView.h"
#include "Views/Controls/ControlsView.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/EditorView.h"
#include "Views/Shortcuts/KeyboardShortcutsView.h"

#include <QAccessible>
#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QFileDialog>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRegularExpression>
#include <QTextLayout>
#include <QToolButton>
#include <QTranslator>
#include <QTreeWidget>
#include <QTreeWidgetItemIterator>

#include <gmock/gmock.h>

#include <algorithm>
#include <array>
#include <vector>

/// Every face of the program in every language: nothing stays English, nothing is cut.
namespace brisklet {
namespace {

using testsupport::PseudoLanguage;
using testsupport::pumpPending;
using testsupport::pumpUntil;

constexpr QSize kSmallest(720, 480);
constexpr std::array kLanguages{"en", "de", "fr", "es", "it", "pt_BR", "nl", "pl",
                                "sv", "cs", "uk", "tr", "ru", "ar",    "ja", "zh_CN"};
constexpr const char* kPseudo = "pseudo";

/// Without what marks keys and places for line breaks.
QString readable(QString text) {
    return text.remove(u'&').remove(QChar(0x200b)).section(u'\t', 0, 0).trimmed();
}

/// Names, numbers and times, which are the same in all languages.
bool isForAll(const QString& text) {
    static const QRegularExpression letters(QStringLiteral("\\p{L}"));
    static const QRegularExpression names(
        QStringLiteral("^(Brisklet|MP4|MOV|\\d+p|.*\\.(mp4|mov|txt))$"));
    return !letters.match(text).hasMatch() || names.match(text).hasMatch();
}

/// Keys, whose names are Qt's.
bool areKeys(const QString& text) {
    static const QString key = QStringLiteral(
        "((Ctrl|Alt|Shift)\\+)*(Esc|Tab|Space|Home|End|Left|Right|Up|Down|PgUp|PgDown|F4|.)");
    static const QRegularExpression names(QStringLiteral("^%1(, %1)*$").arg(key));
    return names.match(text).hasMatch();
}

/// What a page of keys says, without the keys.
QStringList textsOf(const QTreeWidget& page) {
    QStringList texts;
    for (QTreeWidgetItemIterator item(const_cast<QTreeWidget*>(&page)); *item; ++item) {
        texts << (*item)->text(0);
        const QString keys = (*item)->text(1);
        if (!areKeys(keys))
            texts << keys.section(u'+', -1);
    }
    return texts;
}

/// All that a widget tells people by itself, on the screen or through a screen reader.
QStringList textsOf(const QWidget& widget) {
    QStringList texts{widget.accessibleName(), widget.accessibleDescription(), widget.toolTip()};
    if (widget.isWindow() && widget.windowType() != Qt::Popup)
        texts << widget.windowTitle();
    if (const auto* label = qobject_cast<const QLabel*>(&widget))
        texts << label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget))
        texts << button->text();
    if (const auto* menu = qobject_cast<const QMenu*>(&widget))
        texts << menu->title();
    if (const auto* page = qobject_cast<const QTreeWidget*>(&widget))
        texts << textsOf(*page);
    for (const QAction* action : widget.actions())
        texts << action->text();
    return texts;
}

QWidgetList withChildren(QWidget& face) {
    QWidgetList all{&face};
    all << face.findChildren<QWidget*>();
    return all;
}

/// Whether a text, or each line of it, is wholly in the pseudo-language or the same in all.
bool isTranslated(const QString& text) {
    const auto isFine = [](const QString& part) {
        return part.isEmpty() || isForAll(part) || PseudoLanguage::isWholly(part);
    };
    return isFine(text) || std::ranges::all_of(text.split(u'\n'), isFine);
}

/// What is not wholly in the pseudo-language and should be.
QStringList englishOf(QWidget& face) {
    QStringList found;
    for (const QWidget* widget : withChildren(face)) {
        // Others that are over it are faces of their own.
        if (widget->window() != face.window())
            continue;
        for (const QString& raw : textsOf(*widget)) {
            const QString text = readable(raw);
            if (!isTranslated(text))
                found << text;
        }
    }
    found.removeDuplicates();
    return found;
}

bool isText(const QWidget& widget) {
    return qobject_cast<const QLabel*>(&widget) || qobject_cast<const QPushButton*>(&widget) ||
           qobject_cast<const QToolButton*>(&widget);
}

bool hasRoom(const QWidget& widget) {
    const auto* label = qobject_cast<const QLabel*>(&widget);
    if (label != nullptr && label->wordWrap())
        return label->heightForWidth(label->width()) <= label->height();
    const QSize needed = widget.sizeHint();
    return needed.width() <= widget.width() && needed.height() <= widget.height();
}

QRect placeOf(const QWidget& widget) {
    return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

QString describe(const QWidget& widget) {
    return textsOf(widget).join(u' ').simplified() + u' ' +
           QString::fromLatin1(widget.metaObject()->className());
}

/// Whether a column is narrower than its texts, or all of them wider than the page.
bool isCut(const QTreeWidget& page) {
    const QAbstractItemView& columns = page;
    for (int column = 0; column < page.columnCount(); ++column) {
        if (page.columnWidth(column) < columns.sizeHintForColumn(column))
            return true;
    }
    return page.header()->length() > page.viewport()->width();
}

/// What is cut, covers something else, or lies outside the window.
QStringList misplacedOf(QWidget& face) {
    QStringList found;
    QWidgetList texts;
    for (QWidget* widget : withChildren(face)) {
        if (widget->isVisibleTo(&face) && widget->window() == face.window() && isText(*widget))
            texts << widget;
    }
    for (const auto* page : face.findChildren<QTreeWidget*>()) {
        if (isCut(*page))
            found << QStringLiteral("cut: ") + describe(*page);
    }
    for (QWidget* widget : texts) {
        if (!hasRoom(*widget))
            found << QStringLiteral("cut: ") + describe(*widget);
        if (!face.window()->rect().contains(placeOf(*widget)))
            found << QStringLiteral("outside: ") + describe(*widget);
        for (const QWidget* other : texts) {
            if (other < widget && other->parentWidget() == widget->parentWidget() &&
                placeOf(*widget).intersects(placeOf(*other)))
                found << QStringLiteral("covered: ") + describe(*widget) + QStringLiteral(" by ") +
                             describe(*other);
        }
    }
    return found;
}

/// The program in one language, with each of its faces shown in turn.
class LanguagesTest : public AppFixture {
protected:
    using Look = std::function<QStringList(QWidget& face)>;

    ~LanguagesTest() override { QApplication::setLayoutDirection(Qt::LeftToRight); }

    void speak(const QString& language) {
        if (language == QLatin1String(kPseudo)) {
            m_pseudo = std::make_unique<PseudoLanguage>(
                QStringLiteral(BRISKLET_SOURCE_DIR "/translations/brisklet_en.ts"));
            return;
        }
        // English has none but for plural forms.
        static_cast<void>(m_translator.load(QStringLiteral(":/translations/brisklet_") + language));
        if (language != u"en") {
            ASSERT_FALSE(m_translator.translate("brisklet::AppCommands", "Quit").isEmpty())
                << "there is no catalogue of " << language.toStdString();
        }
        QCoreApplication::installTranslator(&m_translator);
        QApplication::setLayoutDirection(QLocale(language).textDirection());
    }

    /// Looks at a face, and says which it was where something is amiss.
    void lookAt(const char* name, QWidget* face, const Look& look) {
        ASSERT_NE(face, nullptr) << name;
        pumpPending();
        const QStringList found = look(*face);
        EXPECT_TRUE(found.isEmpty()) << name << ":\n" << found.join(u'\n').toStdString();
    }

    void lookAtAll(const Look& look) {
        WindowRootView* window = openWindow();
        window->resize(kSmallest);
        lookAt("empty", window, look);
        lookAtAlert(*window, look);
        lookAtUpdates(look);
        ASSERT_TRUE(loadAndWait(*window, video(2)));
        lookAt("editor", window, look);
        window->state()->toggleCrop();
        window->state()->setMuted(true);
        ExportSettings::shared().setResolution(ExportResolution::uhd2160);
        lookAt("crop, mute and cap", window, look);
        ExportSettings::shared().setResolution(ExportResolution::original);
        lookAtMenus(*window, look);
        lookAtAbout(*window, look);
        lookAtKeys(*window, look);
        lookAtPanels(*window, look);
        lookAtLoss(*window, look);
        lookAtExport(*window, look);
    }

private:
    void lookAtAlert(WindowRootView& window, const Look& look) {
        window.state()->load(urlOf(m_folder / "missing.mp4"));
        ASSERT_TRUE(pumpUntil([&] { return visibleDialog(window) != nullptr; }));
        lookAt("alert", visibleDialog(window), look);
        visibleDialog(window)->close();
        pumpPending();
    }

    void lookAtMenus(WindowRootView& window, const Look& look) {
        auto* bar = window.findChild<QMenuBar*>();
        for (const QAction* action : bar->actions()) {
            action->menu()->popup(window.mapToGlobal(QPoint()));
            lookAt("menu", action->menu(), look);
            action->menu()->close();
        }
        ExportButton& button = window.findChild<EditorView*>()->controls().exportButton();
        button.popUpMenu();
        lookAt("export menu", button.menu(), look);
        button.menu()->close();
    }

    void lookAtAbout(WindowRootView& window, const Look& look) {
        window.findChild<QMenuBar*>()->actions().first()->menu()->actions().first()->trigger();
        lookAt("about", visibleDialog(window), look);
        visibleDialog(window)->close();
        pumpPending();
    }

    void lookAtKeys(WindowRootView& window, const Look& look) {
        KeyboardShortcutsView::openFor(window);
        lookAt("page of keys", visibleDialog(window), look);
        visibleDialog(window)->close();
        pumpPending();
    }

    void lookAtPanels(WindowRootView& window, const Look& look) {
        const auto titleOnly = [&look](QWidget& panel) {
            QLabel title(panel.windowTitle());
            QStringList found = look(title);
            for (const QString& filter : static_cast<QFileDialog&>(panel).nameFilters()) {
                // Without the patterns, and so without the quote behind them.
                title.setText(filter.section(QStringLiteral(" ("), 0, 0) + u'»');
                found << look(title);
            }
            return found;
        };
        for (const bool isSaving : {false, true}) {
            if (isSaving)
                window.state()->presentExportPanel();
            else
                window.state()->presentOpenPanel();
            ASSERT_TRUE(pumpUntil([&] { return window.findChild<QFileDialog*>() != nullptr; }));
            auto* panel = window.findChild<QFileDialog*>();
            EXPECT_FALSE(panel->windowTitle().isEmpty());
            if (m_pseudo)
                lookAt(isSaving ? "save panel" : "open panel", panel, titleOnly);
            panel->close();
            ASSERT_TRUE(pumpUntil([&] { return window.findChild<QFileDialog*>() == nullptr; }));
        }
    }

    void lookAtLoss(WindowRootView& window, const Look& look) {
        testsupport::LosableVideos::lose(pathOf(video(2)));
        ASSERT_TRUE(pumpUntil([&] { return visibleDialog(window) != nullptr; }));
        lookAt("offer to open again", visibleDialog(window), look);
        visibleDialog(window)->close();
        lookAt("lost video", &window, look);
    }

    void lookAtExport(WindowRootView& window, const Look& look) {
        ASSERT_TRUE(startLongExport(window));
        lookAt("progress", window.content().attachedSheet(), look);
        window.close();
        lookAt("closing question", visibleQuestion(window), look);
    }

    void lookAtUpdates(const Look& look) {
        const AppcastItem item{.version = QStringLiteral("2"),
                               .shortVersion = QStringLiteral("2.0"),
                               .releaseNotes = QStringLiteral("1")};
        UpdateDialogs dialogs;
        const auto shown = [] {
            for (QWidget* widget : QApplication::topLevelWidgets()) {
                if (qobject_cast<QDialog*>(widget) && widget->isVisible())
                    return widget;
            }
            return static_cast<QWidget*>(nullptr);
        };
        const std::vector<std::function<void()>> all{
            [&] { dialogs.askForAutomaticChecks([](bool) {}); },
            [&] { dialogs.showChecking([] {}); },
            [&] { dialogs.showUpToDate(QStringLiteral("1.0")); },
            [&] { dialogs.showUpdate(item, QStringLiteral("1.0"), [](UpdateChoice) {}); },
            [&] { dialogs.showDownload(item, [] {}); }};
        for (const auto& show : all) {
            show();
            lookAt("updates", shown(), look);
            dialogs.dismiss();
            pumpPending();
        }
    }

    static QDialog* visibleDialog(const WindowRootView& window) {
        for (auto* dialog : window.findChildren<QDialog*>()) {
            if (dialog->isVisible())
                return dialog;
        }
        return nullptr;
    }

    testsupport::LosableVideos m_losable;
    std::unique_ptr<PseudoLanguage> m_pseudo;
    QTranslator m_translator;
};

TEST_F(LanguagesTest, leaveNoEnglishBehind) {
    speak(QLatin1String(kPseudo));
    lookAtAll(englishOf);
}

class LayoutTest : public LanguagesTest, public testing::WithParamInterface<const char*> {};

TEST_P(LayoutTest, hasRoomForAllTextsInTheSmallestWindow) {
    speak(QLatin1String(GetParam()));
    if (IsSkipped() || HasFatalFailure())
        return;
    lookAtAll(misplacedOf);
}

TEST_P(LayoutTest, hasRoomForItsMenuBarAndControls) {
    speak(QLatin1String(GetParam()));
    if (IsSkipped() || HasFatalFailure())
        return;
    WindowRootView* window = openWindow();
    window->resize(kSmallest);
    pumpPending();
    const auto* more = window->findChild<QToolButton*>(QStringLiteral("qt_menubar_ext_button"));
    EXPECT_TRUE(more == nullptr || !more->isVisible());
    ExportSettings::shared().setResolution(ExportResolution::uhd2160);
    ASSERT_TRUE(loadAndWait(*window, video(1)));
    window->state()->toggleCrop();
    pumpPending();
    EXPECT_LE(window->content().minimumSizeHint().width(), kSmallest.width());
    ExportSettings::shared().setResolution(ExportResolution::original);
}

/// The letters that open menus and choose entries.
QString acceleratorsOf(const QList<QAction*>& actions) {
    static const QRegularExpression marked(QStringLiteral("&(\\w)"),
                                           QRegularExpression::UseUnicodePropertiesOption);
    QString letters;
    for (const QAction* action : actions)
        letters += marked.match(action->text()).captured(1).toUpper();
    return letters;
}

bool hasNoDoubles(QString letters) {
    std::ranges::sort(letters);
    return std::ranges::adjacent_find(letters) == letters.end();
}

TEST_P(LayoutTest, hasNoAcceleratorTwiceInAMenu) {
    speak(QLatin1String(GetParam()));
    if (IsSkipped() || HasFatalFailure())
        return;
    const auto* bar = openWindow()->findChild<QMenuBar*>();
    EXPECT_EQ(acceleratorsOf(bar->actions()).size(), bar->actions().size());
    EXPECT_TRUE(hasNoDoubles(acceleratorsOf(bar->actions())));
    for (const QAction* action : bar->actions())
        EXPECT_TRUE(hasNoDoubles(acceleratorsOf(action->menu()->actions())));
}

std::vector<const char*> allLanguages() {
    std::vector<const char*> all(kLanguages.begin(), kLanguages.end());
    all.push_back(kPseudo);
    return all;
}

INSTANTIATE_TEST_SUITE_P(Each, LayoutTest, testing::ValuesIn(allLanguages()),
                         [](const auto& language) { return std::string(language.param); });

TEST(Languages, areAmongThoseThatAreTested) {
    EXPECT_FALSE(translatedLanguages().isEmpty());
    for (const QString& language : translatedLanguages())
        EXPECT_THAT(kLanguages, testing::Contains(testing::StrEq(language.toStdString())));
}

/// Where a desktop mirrors, the program does; time and pictures stay as they are.
class RightToLeft : public AppFixture {
protected:
    void SetUp() override { QApplication::setLayoutDirection(Qt::RightToLeft); }

    ~RightToLeft() override { QApplication::setLayoutDirection(Qt::LeftToRight); }
};

// A menu showed "]" for the key "[".
TEST_F(RightToLeft, showsBracketsAsTheKeysHaveThem) {
    for (const QAction* action : openWindow()->findChildren<QAction*>()) {
        if (action->shortcut() == QKeySequence(Qt::Key_BracketLeft)) {
            EXPECT_TRUE(action->text().endsWith(QStringLiteral("\t\u202d[\u202c")));
        }
    }
}

// In Arabic the examples of Go to Time stood in the reverse order of what they are examples of.
TEST_F(RightToLeft, listsExamplesInTheOrderOfReading) {
    const QString text =
        translatedInto(QStringLiteral("ar"), "brisklet::GoToTimePanel",
                       "A time, frames from here, or a frame: 1:23.456, +10f, #2412");
    QTextLayout layout(text, QApplication::font());
    layout.setTextOption(QTextOption(Qt::AlignRight));
    layout.beginLayout();
    const QTextLine line = layout.createLine();
    layout.endLayout();
    const auto middle = [&](const QString& part) {
        const int begin = static_cast<int>(text.indexOf(part));
        EXPECT_GE(begin, 0) << text.toStdString();
        return line.cursorToX(begin + static_cast<int>(part.size()) / 2);
    };
    EXPECT_GT(middle(QStringLiteral("1:23.456")), middle(QStringLiteral("+10f")));
    EXPECT_GT(middle(QStringLiteral("+10f")), middle(QStringLiteral("#2412")));
    // A sign stays before its number.
    EXPECT_LT(line.cursorToX(static_cast<int>(text.indexOf(u'#'))), middle(QStringLiteral("2412")));
}

TEST_F(RightToLeft, mirrorsTheControls) {
    WindowRootView* window = openWindow();
    ASSERT_TRUE(loadAndWait(*window, video(1)));
    const ControlsView& controls = window->findChild<EditorView*>()->controls();
    const auto left = [&](const QWidget& widget) { return widget.mapTo(window, QPoint()).x(); };
    EXPECT_LT(left(controls.exportButton()), left(controls.playButton()));
    EXPECT_EQ(controls.exportButton().menuRect().left(), 0);
}

} // namespace
} // namespace brisklet
