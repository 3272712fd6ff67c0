#include "Views/Controls/ControlsView.h"

#include "Export/ExportSettings.h"
#include "Models/EditStateFixture.h"
#include "QtSupport/Pixels.h"
#include "QtSupport/PreferencesFixture.h"
#include "TestSupport/TemporaryFolder.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Painting/TabularLabel.h"
#include "Views/Painting/Theme.h"

#include <QAccessible>
#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QScreen>
#include <QShortcut>
#include <QTest>

#include <memory>
#include <utility>

namespace brisklet {
namespace {

using testsupport::pumpPending;
using testsupport::pumpUntil;

class ControlsViewTest : public EditStateFixture {
protected:
    ControlsViewTest() {
        reset();
        m_window.show();
        m_window.activateWindow();
        // Shortcuts belong to the active window.
        EXPECT_TRUE(QTest::qWaitForWindowActive(&m_window));
    }

    ~ControlsViewTest() override { reset(); }

    static void reset() {
        ExportSettings::shared().setFormat(ExportFormat::mp4);
        ExportSettings::shared().setResolution(ExportResolution::original);
    }

    void press(Qt::Key key) { QTest::keyClick(&m_window, key); }

    static void click(QWidget& widget) { QTest::mouseClick(&widget, Qt::LeftButton); }

    QMenu& menu() { return *m_controls->exportButton().menu(); }

    QAction* entry(const QString& text) {
        for (QAction* action : menu().actions()) {
            if (!action->isSeparator() && action->text() == text)
                return action;
        }
        return nullptr;
    }

    /// Chooses from the menu as a person does: opens it and clicks the entry.
    void choose(const QString& text) {
        ExportButton& button = m_controls->exportButton();
        QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, button.menuRect().center());
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu()));
        // On the way there it moves: newer releases of Qt take a click of a pointer that rests for
        // the end of the one that opened the menu.
        const QPoint place = menu().actionGeometry(entry(text)).center();
        constexpr int kSteps = 10;
        for (int step = kSteps; step >= 0; --step)
            QTest::mouseMove(&menu(), place - QPoint(step, 0));
        QTest::mouseClick(&menu(), Qt::LeftButton, Qt::NoModifier, place);
        ASSERT_TRUE(pumpUntil([this] { return !menu().isVisible(); }));
    }

    QString exportTitle() const { return m_controls->exportButton().text(); }

    QWidget m_window;
    ControlsView* m_controls = new ControlsView(m_state, &m_window);
};

TEST_F(ControlsViewTest, cropsAndRemovesTheCropByKey) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2, .width = 1920, .height = 1080}));
    const FlatButton& crop = m_controls->cropButton();
    EXPECT_EQ(crop.toolTip(), QStringLiteral("Crop"));
    EXPECT_EQ(crop.tint(), FlatButton::Tint::primary);
    EXPECT_FALSE(m_controls->cropSize().isVisible());

    press(Qt::Key_K);
    EXPECT_EQ(state().cropRect(), (media::Rect{0.1, 0.1, 0.8, 0.8}));
    EXPECT_EQ(crop.toolTip(), QStringLiteral("Remove crop"));
    EXPECT_EQ(crop.tint(), FlatButton::Tint::accent);
    EXPECT_TRUE(m_controls->cropSize().isVisible());
    EXPECT_EQ(m_controls->cropSize().text(), QStringLiteral("1536×864"));

    press(Qt::Key_K);
    EXPECT_FALSE(state().cropRect());
    EXPECT_EQ(crop.toolTip(), QStringLiteral("Crop"));
    EXPECT_FALSE(m_controls->cropSize().isVisible());
}

TEST_F(ControlsViewTest, turnsTheSizeOfTheCropWithThePicture) {
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 2, .width = 1920, .height = 1080}));
    // In the middle: its fractions are the same after a turn.
    state().setCropRect(media::Rect{0.25, 0.25, 0.5, 0.5});
    EXPECT_EQ(m_controls->cropSize().text(), QStringLiteral("960×540"));
    press(Qt::Key_R);
    EXPECT_EQ(m_controls->cropSize().text(), QStringLiteral("540×960"));
}

TEST_F(ControlsViewTest, pressesNoButtonTwiceWhileAKeyIsHeld) {
    const auto keys = m_controls->findChildren<QShortcut*>();
    EXPECT_EQ(keys.size(), 4);
    for (const QShortcut* key : keys)
        EXPECT_FALSE(key->autoRepeat()) << key->key().toString().toStdString();
}

TEST_F(ControlsViewTest, opensItsMenuByTheLeftButtonOnly) {
    ExportButton& button = m_controls->exportButton();
    for (const Qt::MouseButton other : {Qt::RightButton, Qt::MiddleButton}) {
        QTest::mouseClick(&button, other, Qt::NoModifier, button.menuRect().center());
        EXPECT_FALSE(menu().isVisible());
    }
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, button.menuRect().center());
    EXPECT_TRUE(menu().isVisible());
    menu().close();
}

TEST_F(ControlsViewTest, isUprightAgainAfterFourTurns) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    FlatButton& rotate = m_controls->rotateButton();
    EXPECT_EQ(rotate.toolTip(), QStringLiteral("Rotate left"));
    for (const int rotation : {270, 180, 90}) {
        click(rotate);
        EXPECT_EQ(state().rotation(), rotation);
        EXPECT_EQ(rotate.tint(), FlatButton::Tint::accent);
    }
    press(Qt::Key_R);
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_EQ(rotate.tint(), FlatButton::Tint::primary);
}

TEST_F(ControlsViewTest, locksTheExportButtonAndNothingElseWhileAnExportRuns) {
    const testsupport::TemporaryFolder folder;
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 30, .width = 640, .height = 480}));
    m_panels->toSave = urlOf(folder / "out.mp4");
    ExportButton& button = m_controls->exportButton();
    click(button);
    ASSERT_TRUE(pumpUntil([this] { return state().exportProgress().has_value(); }));
    EXPECT_FALSE(button.isEnabled());
    QTest::mouseClick(&button, Qt::LeftButton, Qt::NoModifier, button.menuRect().center());
    EXPECT_FALSE(menu().isVisible());
    for (const FlatButton* other : {&m_controls->playButton(), &m_controls->muteButton(),
                                    &m_controls->rotateButton(), &m_controls->cropButton()})
        EXPECT_TRUE(other->isEnabled());
    click(m_controls->muteButton());
    EXPECT_TRUE(state().isMuted());

    state().cancelExport();
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_TRUE(button.isEnabled());
}

TEST_F(ControlsViewTest, namesTheChoiceOfFormatAndResolutionOnTheExportButton) {
    EXPECT_EQ(exportTitle(), QStringLiteral("Export MP4…"));
    choose(QStringLiteral("MOV"));
    EXPECT_EQ(exportTitle(), QStringLiteral("Export MOV…"));
    choose(QStringLiteral("720p"));
    EXPECT_EQ(exportTitle(), QStringLiteral("Export MOV · 720p…"));
    EXPECT_TRUE(entry(QStringLiteral("MOV"))->isChecked());
    EXPECT_TRUE(entry(QStringLiteral("720p"))->isChecked());
    EXPECT_FALSE(entry(QStringLiteral("Original"))->isChecked());
    choose(QStringLiteral("Reset to Defaults"));
    EXPECT_EQ(exportTitle(), QStringLiteral("Export MP4…"));
    EXPECT_TRUE(entry(QStringLiteral("Original"))->isChecked());
}

TEST_F(ControlsViewTest, offersFormatsThenResolutionsThenTheReset) {
    QStringList texts;
    for (const QAction* action : menu().actions())
        texts << (action->isSeparator() && action->text().isEmpty() ? QStringLiteral("-")
                                                                    : action->text());
    const QStringList wanted{QStringLiteral("Format"),
                             QStringLiteral("MP4"),
                             QStringLiteral("MOV"),
                             QStringLiteral("-"),
                             QStringLiteral("Resolution"),
                             QStringLiteral("Original"),
                             QStringLiteral("2160p"),
                             QStringLiteral("1440p"),
                             QStringLiteral("1080p"),
                             QStringLiteral("720p"),
                             QStringLiteral("480p"),
                             QStringLiteral("-"),
                             QStringLiteral("Reset to Defaults"),
                             QStringLiteral("-"),
                             m_controls->forecastLine().text()};
    EXPECT_EQ(texts, wanted);
}

TEST_F(ControlsViewTest, saysAtTheEndOfItsMenuWhatAnExportComesTo) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const QAction& line = m_controls->forecastLine();
    EXPECT_EQ(menu().actions().constLast(), &line);
    EXPECT_FALSE(line.isEnabled());
    const auto shows = [&](const QString& text) {
        return pumpUntil([&] {
            return line.text() == text &&
                   m_controls->exportButton().accessibleDescription().startsWith(text + u'\n');
        });
    };
    state().clearExportForecast();
    EXPECT_TRUE(shows(QStringLiteral("00:10.0 · 320 × 240"))) << line.text().toStdString();
    state().setExportForecast(*state().plannedExport(), {.bytes = 46'400'000, .seconds = 9.2});
    EXPECT_TRUE(shows(QStringLiteral("00:10.0 · 320 × 240 · about 46 MB · about 9 s")));
    state().setTrimEnd(7.5);
    state().rotateLeft();
    state().setCropRect(media::Rect{0.1, 0.1, 0.8, 0.8});
    EXPECT_TRUE(shows(QStringLiteral("00:07.5 · 192 × 256")));
}

TEST_F(ControlsViewTest, followsAChoiceThatAnotherWindowMade) {
    ExportSettings::shared().setResolution(ExportResolution::fhd1080);
    EXPECT_EQ(exportTitle(), QStringLiteral("Export MP4 · 1080p…"));
    EXPECT_TRUE(entry(QStringLiteral("1080p"))->isChecked());
}

TEST_F(ControlsViewTest, mutesThePlayerAtOnce) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const FlatButton& mute = m_controls->muteButton();
    EXPECT_EQ(mute.toolTip(), QStringLiteral("Mute"));
    press(Qt::Key_M);
    EXPECT_TRUE(state().isMuted());
    EXPECT_TRUE(player().isMuted());
    EXPECT_EQ(mute.tint(), FlatButton::Tint::red);
    EXPECT_EQ(mute.symbol(), Symbol::speakerSlashed);
    EXPECT_EQ(mute.toolTip(), QStringLiteral("Unmute (audio will be removed on export)"));
    press(Qt::Key_M);
    EXPECT_FALSE(player().isMuted());
    EXPECT_EQ(mute.tint(), FlatButton::Tint::primary);
}

TEST_F(ControlsViewTest, playsAndPausesByTheSpaceBar) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    EXPECT_EQ(m_controls->playButton().toolTip(), QStringLiteral("Play"));
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    EXPECT_EQ(m_controls->playButton().toolTip(), QStringLiteral("Pause"));
    EXPECT_EQ(m_controls->playButton().symbol(), Symbol::pause);
    press(Qt::Key_Space);
    ASSERT_TRUE(pumpUntil([this] { return !state().isPlaying(); }));
}

TEST_F(ControlsViewTest, leavesTheKeysToATextFieldThatHasTheKeyboard) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    QLineEdit field(&m_window);
    field.show();
    field.setFocus();
    QTest::keyClicks(&field, QStringLiteral(" mrk"));
    EXPECT_EQ(field.text(), QStringLiteral(" mrk"));
    EXPECT_FALSE(state().isPlaying());
    EXPECT_FALSE(state().isMuted());
    EXPECT_EQ(state().rotation(), 0);
    EXPECT_FALSE(state().cropRect());
}

TEST_F(ControlsViewTest, leavesTheKeysToAnOpenMenu) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_controls->exportButton().popUpMenu();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu()));
    QTest::keyClick(&menu(), Qt::Key_R);
    EXPECT_EQ(state().rotation(), 0);
    menu().close();
}

TEST_F(ControlsViewTest, pressesTheButtonThatHasTheKeyboardByTheSpaceBar) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    m_controls->rotateButton().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_controls->rotateButton(), Qt::Key_Space);
    EXPECT_EQ(state().rotation(), 270);
    EXPECT_FALSE(state().isPlaying());
}

TEST_F(ControlsViewTest, leavesTheKeyboardWhereItWasWhenAButtonIsClicked) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    click(m_controls->muteButton());
    EXPECT_FALSE(m_controls->muteButton().hasFocus());
    press(Qt::Key_Space);
    EXPECT_TRUE(pumpUntil([this] { return state().isPlaying(); }));
    EXPECT_TRUE(state().isMuted());
}

TEST_F(ControlsViewTest, opensItsMenuByTheDownKey) {
    m_controls->exportButton().setFocus(Qt::TabFocusReason);
    QTest::keyClick(&m_controls->exportButton(), Qt::Key_Down);
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu()));
    menu().close();
}

TEST_F(ControlsViewTest, opensItsMenuByTheKeysOfTheDesktop) {
    ExportButton& button = m_controls->exportButton();
    button.setFocus(Qt::TabFocusReason);
    for (const auto& [key, modifiers] :
         {std::pair(Qt::Key_Down, Qt::KeyboardModifiers(Qt::AltModifier)),
          std::pair(Qt::Key_F4, Qt::KeyboardModifiers())}) {
        QTest::keyClick(&button, key, modifiers);
        ASSERT_TRUE(QTest::qWaitForWindowExposed(&menu()));
        menu().close();
    }
}

/// The pointer leaves the button for the menu, which the button was not told.
TEST_F(ControlsViewTest, forgetsThePointerThatWentToItsMenu) {
    ExportButton& button = m_controls->exportButton();
    // At twice the density the offscreen platform looks for the window under the pointer at twice
    // the distance.
    m_window.setGeometry(0, 0, 800, 800);
    m_controls->setGeometry(0, 300, 380, 40);
    QTest::mouseMove(&m_window, QPoint(5, 5));
    pumpPending();
    const QImage plain = button.grab().toImage();
    QTest::mouseMove(&button, button.menuRect().center());
    pumpPending();
    EXPECT_NE(button.grab().toImage(), plain);
    choose(QStringLiteral("MP4"));
    pumpPending();
    EXPECT_EQ(button.grab().toImage(), plain);
}

/// The ring was of nearly the colour of the button.
TEST_F(ControlsViewTest, showsTheFocusOnTheColourOfTheExportButton) {
    const QPalette light = QApplication::palette();
    for (const QPalette& palette :
         {light, QPalette(QColor(0x38, 0x38, 0x3d), QColor(0x24, 0x24, 0x28))}) {
        QApplication::setPalette(palette);
        ExportButton& button = m_controls->exportButton();
        button.setFocus(Qt::TabFocusReason);
        pumpPending();
        const testsupport::Pixels pixels(button);
        const double x = button.width() / 3.0;
        const QColor fill = pixels.at(x, 1);
        EXPECT_GE(theme::contrast(pixels.at(x, 3), fill), 3);
        EXPECT_GE(theme::contrast(pixels.at(x, button.height() - 3), fill), 3);
    }
    QApplication::setPalette(light);
}

TEST_F(ControlsViewTest, tellsAssistiveProgramsOfItsMenu) {
    auto* button = QAccessible::queryAccessibleInterface(&m_controls->exportButton());
    EXPECT_TRUE(button->state().hasPopup);
    EXPECT_FALSE(button->state().expanded);
    EXPECT_NE(button->text(QAccessible::Description), QString());
    ASSERT_EQ(button->childCount(), 1);
    EXPECT_EQ(button->child(0)->object(), &menu());
    EXPECT_EQ(button->indexOfChild(button->child(0)), 0);
    QAccessibleActionInterface* actions = button->actionInterface();
    ASSERT_EQ(actions->actionNames(), QStringList({QAccessibleActionInterface::pressAction(),
                                                   QAccessibleActionInterface::showMenuAction()}));
    actions->doAction(QAccessibleActionInterface::showMenuAction());
    EXPECT_TRUE(button->state().expanded);
    menu().close();
    EXPECT_FALSE(button->state().expanded);
}

/// The keyboard went on to the crop, and the arrow keys moved it after an export.
TEST_F(ControlsViewTest, hasTheKeyboardAgainAfterAnExport) {
    const testsupport::TemporaryFolder folder;
    ASSERT_TRUE(loadAndWait(testsupport::Recipe{.duration = 1}));
    m_controls->exportButton().setFocus(Qt::TabFocusReason);
    state().exportTo(urlOf(folder / "out.mp4"));
    ASSERT_FALSE(m_controls->exportButton().isEnabled());
    EXPECT_EQ(m_window.focusWidget(), &m_window);
    ASSERT_TRUE(pumpUntil([this] { return !state().exportProgress(); }));
    EXPECT_EQ(m_window.focusWidget(), &m_controls->exportButton());
}

/// The titles kept the colour of the light palette that they were made under.
TEST_F(ControlsViewTest, keepsTheTitlesOfItsMenuLegibleWhenTheDesktopTurnsDark) {
    const QPalette light = QApplication::palette();
    for (const QPalette& palette : {QPalette(QColor(0x38, 0x38, 0x3d), QColor(0x24, 0x24, 0x28)),
                                    QPalette(QColor(0xef, 0xef, 0xef))}) {
        QApplication::setPalette(palette);
        testsupport::pumpPending();
        const QList<QLabel*> titles = menu().findChildren<QLabel*>();
        // The line with the forecast is the third.
        ASSERT_EQ(titles.size(), 3);
        for (const QLabel* title : titles)
            EXPECT_GE(theme::contrast(title->palette().color(QPalette::WindowText),
                                      palette.color(QPalette::Window)),
                      4.5)
                << title->palette().color(QPalette::WindowText).name().toStdString() << " on "
                << palette.color(QPalette::Window).name().toStdString();
    }
    QApplication::setPalette(light);
}

TEST_F(ControlsViewTest, isTabbedThroughInReadingOrder) {
    m_controls->playButton().setFocus(Qt::TabFocusReason);
    for (QWidget* next :
         std::initializer_list<QWidget*>{&m_controls->muteButton(), &m_controls->rotateButton(),
                                         &m_controls->cropButton(), &m_controls->exportButton()}) {
        QTest::keyClick(m_window.focusWidget(), Qt::Key_Tab);
        EXPECT_EQ(m_window.focusWidget(), next);
    }
}

TEST_F(ControlsViewTest, tellsAssistiveProgramsWhatEachControlIs) {
    ASSERT_TRUE(loadAndWait(kTenSeconds));
    const auto interface = [](QWidget& widget) {
        return QAccessible::queryAccessibleInterface(&widget);
    };
    auto* mute = interface(m_controls->muteButton());
    EXPECT_EQ(mute->text(QAccessible::Name), QStringLiteral("Mute"));
    EXPECT_EQ(mute->role(), QAccessible::CheckBox);
    EXPECT_FALSE(mute->state().checked);
    click(m_controls->muteButton());
    EXPECT_TRUE(mute->state().checked);
    EXPECT_EQ(interface(m_controls->playButton())->role(), QAccessible::Button);
    EXPECT_EQ(interface(m_controls->exportButton())->text(QAccessible::Name),
              QStringLiteral("Export MP4…"));
}

TEST_F(ControlsViewTest, framesTheSymbolsTwentyPointsWideTwelveApart) {
    const auto frame = [](const FlatButton& button) {
        return button.geometry().adjusted(FlatButton::kPadding, 0, -FlatButton::kPadding, 0);
    };
    m_controls->adjustSize();
    const QRect mute = frame(m_controls->muteButton());
    const QRect rotate = frame(m_controls->rotateButton());
    EXPECT_EQ(mute.width(), 20);
    EXPECT_EQ(rotate.left() - mute.left(), 32);
    EXPECT_EQ(frame(m_controls->playButton()).left(), ControlsView::leftInset());
}

} // namespace
} // namespace brisklet
