#include "AppFixture.h"

#include "QtSupport/FakeFilePanels.h"
#include "QtSupport/Keys.h"
#include "TestSupport/MediaCache.h"
#include "Views/ContentView.h"

#include <QApplication>
#include <QDragEnterEvent>
#include <QDragMoveEvent>
#include <QDropEvent>
#include <QMimeData>
#include <QPointer>
#include <QTest>
#include <QWheelEvent>

#include <sys/resource.h>

#include <algorithm>
#include <cstdio>
#include <ctime>
#include <deque>
#include <filesystem>
#include <fstream>
#include <random>
#include <string>
#include <utility>
#include <vector>

namespace brisklet {
namespace {

using testsupport::pumpUntil;

int numberFrom(const char* variable, int otherwise) {
    bool isNumber = false;
    const int number = qEnvironmentVariableIntValue(variable, &isNumber);
    return isNumber ? number : otherwise;
}

double milliseconds(clockid_t clock) {
    timespec now{};
    clock_gettime(clock, &now);
    return static_cast<double>(now.tv_sec) * 1e3 + static_cast<double>(now.tv_nsec) / 1e6;
}

/// How often this thread has waited for something.
long waitCount() {
    rusage usage{};
    getrusage(RUSAGE_THREAD, &usage);
    return usage.ru_nvcsw;
}

/// How long single events kept the main thread.
class Occupation {
public:
    void begin() {
        m_start = milliseconds(CLOCK_MONOTONIC);
        m_spentBefore = milliseconds(CLOCK_THREAD_CPUTIME_ID);
        m_waitsBefore = waitCount();
    }

    void end(const std::string& event) {
        const double elapsed = milliseconds(CLOCK_MONOTONIC) - m_start;
        const double spent = milliseconds(CLOCK_THREAD_CPUTIME_ID) - m_spentBefore;
        const std::string waits = ", " + std::to_string(waitCount() - m_waitsBefore) + " waits";
        m_longest = std::max(m_longest, {elapsed, event + waits});
        m_costliest = std::max(m_costliest, {spent, event});
        constexpr double kMuch = 100;
        m_longCount += elapsed > kMuch;
        m_costlyCount += spent > kMuch;
    }

    void print() const {
        std::printf("longest event: %.1f ms (%d over 100 ms): %s\n", m_longest.first, m_longCount,
                    m_longest.second.c_str());
        std::printf("most of the main thread's processor time: %.1f ms (%d over 100 ms): %s\n",
                    m_costliest.first, m_costlyCount, m_costliest.second.c_str());
    }

private:
    double m_start = 0;
    double m_spentBefore = 0;
    long m_waitsBefore = 0;
    std::pair<double, std::string> m_longest;
    std::pair<double, std::string> m_costliest;
    int m_longCount = 0;
    int m_costlyCount = 0;
};

/// Somebody without a plan at the real window. BRISKLET_RANDOM_EVENTS says how often he acts, and
/// BRISKLET_RANDOM_SEED what he does.
class RandomEventsTest : public AppFixture {
protected:
    RandomEventsTest() {
        // Menus are his as well, and one of their entries writes to the home folder.
        qputenv("HOME", m_folder.path().c_str());
        makeFiles();
    }

    ~RandomEventsTest() override { qputenv("HOME", m_home); }

    void makeFiles() {
        m_good = {video(5), video(1),
                  urlOf(testsupport::makeFixture(
                            {.duration = 2, .width = 180, .height = 320, .displayRotation = 90})
                            .path),
                  urlOf(testsupport::makeFixture({.duration = 0.1}).path)};
        const auto text = m_folder / "notes.txt";
        std::ofstream(text) << "Buy milk.\n";
        const auto broken = m_folder / "broken.mp4";
        std::filesystem::copy_file(pathOf(m_good.front()), broken);
        std::filesystem::resize_file(broken, std::filesystem::file_size(broken) / 2);
        m_bad = {urlOf(text),
                 urlOf(broken),
                 urlOf(m_folder / "missing.mov"),
                 urlOf(m_folder.path()),
                 urlOf(testsupport::cachedMedia("song.m4a",
                                                {"-f", "lavfi", "-i", "sine=d=4", "-c:a", "aac"})),
                 QUrl(QStringLiteral("https://example.org/film.mp4"))};
    }

    int below(int limit) { return std::uniform_int_distribution(0, limit - 1)(m_random); }

    template<typename T>
    const T& oneOf(const std::vector<T>& choices) {
        return choices.at(static_cast<std::size_t>(below(static_cast<int>(choices.size()))));
    }

    const QUrl& anyFile() { return below(3) == 0 ? oneOf(m_bad) : oneOf(m_good); }

    /// Opens a window with a video where there is none.
    bool haveWindow() {
        if (m_window && m_window->isVisible())
            return true;
        m_window = m_app->openWindow();
        m_window->state()->setFilePanels(m_panels);
        count(*m_window->state());
        return testsupport::showActive(*m_window) && loadAndWait(*m_window, m_good.front());
    }

    /// So that it can be seen that the events get anywhere.
    void count(const EditState& state) {
        ++m_windowCount;
        const auto on = [&](auto signal, int& number) {
            QObject::connect(&state, signal, m_app.get(), [&number] { ++number; });
        };
        on(&EditState::videoURLChanged, m_loadCount);
        on(&EditState::errorMessageChanged, m_messageCount);
        on(&EditState::exportProgressChanged, m_progressCount);
        on(&EditState::trimStartChanged, m_trimCount);
        on(&EditState::trimEndChanged, m_trimCount);
        on(&EditState::cropRectChanged, m_cropCount);
        on(&EditState::rotationChanged, m_turnCount);
    }

    void printCounts() const {
        std::printf("%d windows; changes of: video %d, message %d, export %d, trim %d, crop %d, "
                    "turn %d\n",
                    m_windowCount, m_loadCount, m_messageCount, m_progressCount, m_trimCount,
                    m_cropCount, m_turnCount);
    }

    /// The dialog or sheet that takes the input now.
    QWidget* frontDialog() const {
        QWidget* modal = QApplication::activeModalWidget();
        return modal == nullptr && m_window ? m_window->content().attachedSheet() : modal;
    }

    /// Mostly what lies in front.
    QWidget* target() {
        QWidget* front = frontDialog();
        return front != nullptr && below(4) != 0 ? front : m_window.data();
    }

    QPoint pointOn(const QWidget& widget) {
        std::vector<QWidget*> parts;
        for (QWidget* part : widget.findChildren<QWidget*>()) {
            if (part->isVisible() && !part->isWindow() && part->window() == &widget &&
                !part->rect().isEmpty())
                parts.push_back(part);
        }
        // Where something is to be had, mostly, small as it may be.
        if (parts.empty() || below(3) == 0)
            return {below(widget.width()), below(widget.height())};
        const QWidget& part = *oneOf(parts);
        const QPoint point(below(part.width()), below(part.height()));
        return part.mapTo(&widget, point);
    }

    std::string act() {
        switch (below(20)) {
        case 0:
        case 1:
        case 2:
            return pressKey();
        case 3:
            return resize();
        case 4:
            return below(4) == 0 ? drop() : dragAway();
        case 5:
            return turnWheel();
        case 6:
            return letTimePass();
        case 7:
            return comeBack();
        default:
            return useMouse();
        }
    }

    /// What he does stands in words first: the widget may be gone afterwards.
    std::string useMouse() {
        QWidget& widget = *target();
        QWindow* window = widget.windowHandle();
        const QPoint point = pointOn(widget);
        const std::string place = " at " + std::to_string(point.x()) + ", " +
                                  std::to_string(point.y()) + " of " +
                                  widget.metaObject()->className();
        const Qt::MouseButton button = below(20) == 0 ? Qt::RightButton : Qt::LeftButton;
        // What is pressed is dragged, mostly.
        const int choice = m_dragCount > 0 ? 5 : below(6);
        m_dragCount = std::max(0, m_dragCount - 1);
        switch (choice) {
        case 0:
        case 1:
            m_dragCount = below(6);
            QTest::mousePress(window, button, {}, point);
            return "press" + place;
        case 2:
        case 3:
            QTest::mouseRelease(window, button, {}, point);
            return "release" + place;
        case 4:
            QTest::mouseDClick(window, button, {}, point);
            return "double click" + place;
        default:
            QTest::mouseMove(window, point);
            return "move" + place;
        }
    }

    std::string pressKey() {
        static const std::vector<Qt::Key> kKeys{Qt::Key_Space,
                                                Qt::Key_M,
                                                Qt::Key_R,
                                                Qt::Key_K,
                                                Qt::Key_L,
                                                Qt::Key_E,
                                                Qt::Key_O,
                                                Qt::Key_N,
                                                Qt::Key_F,
                                                Qt::Key_C,
                                                Qt::Key_Left,
                                                Qt::Key_Right,
                                                Qt::Key_Up,
                                                Qt::Key_Down,
                                                Qt::Key_Home,
                                                Qt::Key_End,
                                                Qt::Key_PageUp,
                                                Qt::Key_Tab,
                                                Qt::Key_Backtab,
                                                Qt::Key_PageDown,
                                                Qt::Key_Return,
                                                Qt::Key_Escape,
                                                Qt::Key_Enter,
                                                Qt::Key_BracketLeft,
                                                Qt::Key_BracketRight,
                                                Qt::Key_Delete,
                                                Qt::Key_A};
        static const std::vector<Qt::KeyboardModifiers> kModifiers{
            Qt::NoModifier,    Qt::NoModifier,      Qt::NoModifier,
            Qt::ShiftModifier, Qt::ControlModifier, Qt::AltModifier,
            Qt::NoModifier,    Qt::NoModifier,      Qt::ControlModifier | Qt::ShiftModifier};
        Qt::Key key = oneOf(kKeys);
        // Else there would be little but closing and opening windows.
        if (key == Qt::Key_Escape && below(2) != 0)
            key = Qt::Key_Return;
        Qt::KeyboardModifiers modifiers = oneOf(kModifiers);
        // An export needs a video, an answer and time besides.
        if (key == Qt::Key_E)
            modifiers = Qt::ControlModifier;
        if (key == Qt::Key_N && modifiers == Qt::ControlModifier)
            return "nothing";
        m_panels->toOpen = below(4) == 0 ? std::nullopt : std::optional(anyFile());
        m_panels->toSave = below(4) == 0 ? std::nullopt : std::optional(urlOf(m_output));
        testsupport::clickKey(target()->windowHandle(), key, modifiers);
        return "key " + QKeySequence(key | modifiers).toString().toStdString();
    }

    std::string resize() {
        const QSize size(200 + below(1500), 100 + below(1100));
        m_window->resize(size);
        return "size " + std::to_string(size.width()) + " × " + std::to_string(size.height());
    }

    std::string dragAway() {
        QMimeData data;
        data.setUrls({anyFile()});
        enter(data);
        if (m_window) {
            QDragLeaveEvent leave;
            QCoreApplication::sendEvent(&m_window->content(), &leave);
        }
        return "drag away";
    }

    bool enter(const QMimeData& data) {
        QDragEnterEvent enter(QPoint(below(400), below(300)), Qt::CopyAction | Qt::MoveAction,
                              &data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(&m_window->content(), &enter);
        return enter.isAccepted();
    }

    std::string drop() {
        QMimeData data;
        const QUrl url = anyFile();
        if (below(8) != 0)
            data.setUrls({url, oneOf(m_good)});
        if (enter(data)) {
            QDropEvent drop(QPoint(below(400), below(300)), Qt::CopyAction | Qt::MoveAction, &data,
                            Qt::LeftButton, Qt::NoModifier);
            QCoreApplication::sendEvent(&m_window->content(), &drop);
        }
        return "drop of " + url.fileName().toStdString();
    }

    std::string turnWheel() {
        QWidget& widget = *target();
        const QPoint point = pointOn(widget);
        QWheelEvent wheel(point, widget.mapToGlobal(point), {}, {0, below(2) == 0 ? 120 : -120},
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget.windowHandle(), &wheel);
        return "wheel";
    }

    /// Until what runs has gone on: a load, a seek, an export.
    std::string letTimePass() {
        const auto before = m_window->state()->currentTime();
        const auto url = m_window->state()->videoURL();
        pumpUntil(
            [&] {
                return !m_window || m_window->state()->currentTime() != before ||
                       m_window->state()->videoURL() != url;
            },
            std::chrono::milliseconds(20));
        return "pause";
    }

    /// To the window: out of menus, sheets and boxes that would keep him busy to the end.
    std::string comeBack() {
        while (QWidget* popup = QApplication::activePopupWidget())
            popup->close();
        if (QWidget* box = frontDialog())
            testsupport::clickKey(box->windowHandle(),
                                  below(2) == 0 ? Qt::Key_Return : Qt::Key_Space);
        else
            m_window->activateWindow();
        return "return to the window";
    }

    void expectInvariants() {
        constexpr double kRounding = 1e-9;
        for (const WindowRootView* window : m_app->windows()) {
            const EditState& state = *window->state();
            if (state.duration() > 0.1) {
                ASSERT_GE(state.trimStart(), 0);
                ASSERT_LE(state.trimStart(), state.trimEnd() - 0.1 + kRounding);
                ASSERT_LE(state.trimEnd(), state.duration() + kRounding);
            }
            ASSERT_GE(state.currentTime(), 0);
            if (const auto& crop = state.cropRect()) {
                ASSERT_GE(crop->minX(), -kRounding);
                ASSERT_GE(crop->minY(), -kRounding);
                ASSERT_LE(crop->maxX(), 1 + kRounding);
                ASSERT_LE(crop->maxY(), 1 + kRounding);
                ASSERT_GE(crop->width, 0.05 - kRounding);
                ASSERT_GE(crop->height, 0.05 - kRounding);
            }
        }
    }

    std::string lastActions() const {
        std::string text;
        for (const std::string& action : m_actions)
            text += "\n  " + action;
        return text;
    }

    void remember(std::string action) {
        constexpr std::size_t kKept = 20;
        m_actions.push_back(std::move(action));
        if (m_actions.size() > kKept)
            m_actions.pop_front();
    }

    QByteArray m_home = qgetenv("HOME");
    std::vector<QUrl> m_good;
    std::vector<QUrl> m_bad;
    std::filesystem::path m_output = m_folder / "out.mp4";
    std::shared_ptr<testsupport::FakeFilePanels> m_panels =
        std::make_shared<testsupport::FakeFilePanels>();
    QPointer<WindowRootView> m_window;
    int m_dragCount = 0;
    std::mt19937 m_random{
        static_cast<std::mt19937::result_type>(numberFrom("BRISKLET_RANDOM_SEED", 7))};
    std::deque<std::string> m_actions;
    Occupation m_occupation;
    int m_windowCount = 0;
    int m_loadCount = 0;
    int m_messageCount = 0;
    int m_progressCount = 0;
    int m_trimCount = 0;
    int m_cropCount = 0;
    int m_turnCount = 0;
};

TEST_F(RandomEventsTest, leaveTheProgramWhole) {
    const int count = numberFrom("BRISKLET_RANDOM_EVENTS", 1000);
    for (int number = 0; number < count; ++number) {
        ASSERT_TRUE(haveWindow()) << "before event " << number << lastActions();
        m_occupation.begin();
        std::string action = act();
        QCoreApplication::processEvents();
        if (action != "pause")
            m_occupation.end(action);
        remember(std::move(action));
        expectInvariants();
        if (HasFatalFailure())
            FAIL() << "after event " << number << lastActions();
    }
    m_occupation.print();
    printCounts();
    // Who gets nowhere finds nothing.
    for (const int changes :
         {m_loadCount, m_messageCount, m_progressCount, m_trimCount, m_cropCount, m_turnCount})
        EXPECT_GT(changes, 0);
}

} // namespace
} // namespace brisklet
