#include "KeysByPlace.h"

#include "AppFixture.h"

#include <QKeyEvent>

namespace brisklet {
namespace {

/// X11's numbers of keys.
constexpr quint32 kKeyOfP = 33;
constexpr quint32 kKeyBesideP = 34;
constexpr quint32 kKeyAfterThat = 35;
constexpr quint32 kKeyOfK = 45;
constexpr quint32 kKeyOfM = 58;

QKeyEvent press(int key, quint32 place, const QString& text,
                Qt::KeyboardModifiers modifiers = Qt::NoModifier) {
    return {QEvent::KeyPress, key, modifiers, place, 0, 0, text};
}

TEST(KeyByPlace, findsLettersOnCyrillicAndArabicKeyboards) {
    EXPECT_EQ(keyByPlace(press(0x41B, kKeyOfK, QStringLiteral("л"))), QKeyCombination(Qt::Key_K));
    EXPECT_EQ(keyByPlace(press(0x629, kKeyOfM, QStringLiteral("ة"))), QKeyCombination(Qt::Key_M));
    EXPECT_EQ(keyByPlace(press(0x41B, kKeyOfK, QStringLiteral("Л"), Qt::ShiftModifier)),
              QKeyCombination(Qt::SHIFT, Qt::Key_K));
}

TEST(KeyByPlace, findsBracketsWhereNoKeyHasThem) {
    EXPECT_EQ(keyByPlace(press(Qt::Key_Dead_Circumflex, kKeyBesideP, {})),
              QKeyCombination(Qt::Key_BracketLeft));
    EXPECT_EQ(keyByPlace(press(Qt::Key_Dollar, kKeyAfterThat, QStringLiteral("$"))),
              QKeyCombination(Qt::Key_BracketRight));
    EXPECT_EQ(keyByPlace(press(Qt::Key_Udiaeresis, kKeyBesideP, QStringLiteral("ü"))),
              QKeyCombination(Qt::Key_BracketLeft));
}

TEST(KeyByPlace, leavesLatinLettersWhereTheyAreWritten) {
    // On a Dvorak keyboard.
    EXPECT_EQ(keyByPlace(press(Qt::Key_L, kKeyOfP, QStringLiteral("l"))), std::nullopt);
    EXPECT_EQ(keyByPlace(press(Qt::Key_Escape, kKeyOfK, {})), std::nullopt);
    EXPECT_EQ(keyByPlace(press(0x41B, 0, QStringLiteral("л"))), std::nullopt);
}

class KeysByPlaceTest : public AppFixture {
protected:
    static void send(WindowRootView& window, int key, quint32 place) {
        QKeyEvent event = press(key, place, QString(QChar(key)));
        QWidget* focused = window.focusWidget();
        QApplication::sendEvent(focused != nullptr ? focused : &window, &event);
    }
};

TEST_F(KeysByPlaceTest, doWhatTheLettersDo) {
    WindowRootView* window = openWindow();
    ASSERT_TRUE(loadAndWait(*window, video(2)));
    EditState& state = *window->state();
    state.seek(0.5);
    send(*window, 0x425, kKeyBesideP);
    EXPECT_DOUBLE_EQ(state.trimStart(), 0.5);
    send(*window, 0x41B, kKeyOfK);
    EXPECT_TRUE(state.cropRect());
    send(*window, 0x42C, kKeyOfM);
    EXPECT_TRUE(state.isMuted());
}

TEST_F(KeysByPlaceTest, doNothingInAWindowWithoutAVideo) {
    WindowRootView* window = openWindow();
    send(*window, 0x425, kKeyBesideP);
    send(*window, 0x41B, kKeyOfK);
    EXPECT_FALSE(window->state()->cropRect());
}

} // namespace
} // namespace brisklet
