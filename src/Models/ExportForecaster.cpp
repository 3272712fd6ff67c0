#include "Models/ExportForecaster.h"

#include "Export/AVFoundationExporter.h"
#include "Media/Error.h"
#include "Models/EditState.h"
#include "Support/MainThread.h"
#include "Support/Workers.h"

#include <QCoreApplication>
#include <QEvent>

#include <algorithm>
#include <exception>

namespace brisklet {

namespace {

/// How many edits of one video are remembered.
constexpr qsizetype kMostKnown = 32;

QCoro::Task<std::optional<media::ExportForecast>> tryOnWorker(const ExportRequest& request,
                                                              const std::stop_token& stop) {
    return runOnWorker([request, stop] { return AVFoundationExporter::forecast(request, stop); });
}

bool isInput(const QEvent& event) {
    switch (event.type()) {
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonRelease:
    case QEvent::MouseMove:
    case QEvent::Wheel:
    case QEvent::KeyPress:
    case QEvent::KeyRelease:
    case QEvent::TabletPress:
    case QEvent::TabletMove:
    case QEvent::TouchBegin:
    case QEvent::TouchUpdate:
    case QEvent::NativeGesture:
    case QEvent::DragMove:
        return true;
    default:
        return false;
    }
}

} // namespace

ExportForecaster::ExportForecaster(std::shared_ptr<EditState> state, Options options,
                                   QObject* parent)
    : QObject(parent), m_state(std::move(state)), m_options(std::move(options)) {
    verifyMainThread();
    if (!m_options.trial)
        m_options.trial = tryOnWorker;
    m_timer.setSingleShot(true);
    connect(&m_timer, &QTimer::timeout, this, &ExportForecaster::rested);
    s_all.append(this);
    observe();
    reconsider();
}

ExportForecaster::~ExportForecaster() {
    m_state->disconnect(this);
    stopTrial();
    s_all.removeOne(this);
    wakeAll();
}

void ExportForecaster::observe() {
    const EditState* state = m_state.get();
    connect(state, &EditState::videoURLChanged, this, &ExportForecaster::forgetAll);
    connect(state, &EditState::editBegan, this, &ExportForecaster::forgetAll);
    connect(state, &EditState::thumbnailsChanged, this, &ExportForecaster::reconsider);
    for (const auto changed :
         {&EditState::trimStartChanged, &EditState::trimEndChanged, &EditState::cropRectChanged,
          &EditState::rotationChanged, &EditState::isMutedChanged})
        connect(state, changed, this, &ExportForecaster::reconsider);
    const ExportSettings* settings = &ExportSettings::shared();
    connect(settings, &ExportSettings::formatChanged, this, &ExportForecaster::reconsider);
    connect(settings, &ExportSettings::resolutionChanged, this, &ExportForecaster::reconsider);
    for (const auto changed : {&EditState::isPlayingChanged, &EditState::exportProgressChanged,
                               &EditState::isMakingThumbnailsChanged})
        connect(state, changed, this, &ExportForecaster::wakeAll);
}

void ExportForecaster::forgetAll() {
    m_known.clear();
    reconsider();
}

void ExportForecaster::reconsider() {
    stopTrial();
    m_state->clearExportForecast();
    // The making of the filmstrip needs the processors.
    const auto request = m_state->thumbnails().isEmpty() ? std::nullopt : m_state->plannedExport();
    if (!request) {
        settle();
        return;
    }
    const auto known = std::ranges::find_if(
        m_known, [&](const Known& each) { return makeTheSame(each.request, *request); });
    if (known == m_known.end()) {
        want();
        return;
    }
    if (known->forecast)
        m_state->setExportForecast(*request, *known->forecast);
    settle();
}

void ExportForecaster::want() {
    m_sinceInput.start();
    if (!m_isWanted)
        QCoreApplication::instance()->installEventFilter(this);
    m_isWanted = true;
    // Not restarted by every change: it looks at the clock when it runs out.
    if (!m_timer.isActive() && !isBusy())
        m_timer.start(m_options.rest);
}

void ExportForecaster::settle() {
    m_timer.stop();
    if (m_isWanted)
        QCoreApplication::instance()->removeEventFilter(this);
    m_isWanted = false;
}

bool ExportForecaster::eventFilter(QObject* watched, QEvent* event) {
    if (isInput(*event)) {
        m_sinceInput.start();
        stopTrial();
    }
    return QObject::eventFilter(watched, event);
}

void ExportForecaster::stopTrial() {
    if (m_trial)
        m_trial->request_stop();
}

void ExportForecaster::rested() {
    const std::chrono::milliseconds rested(m_sinceInput.elapsed());
    if (rested < m_options.rest)
        m_timer.start(m_options.rest - rested);
    else if (mayBegin())
        begin();
}

bool ExportForecaster::isBusy() const {
    return m_state->isPlaying() || m_state->isMakingThumbnails() ||
           m_state->exportProgress().has_value();
}

bool ExportForecaster::mayBegin() {
    return !s_isTrying && std::ranges::none_of(s_all, &ExportForecaster::isBusy);
}

/// Something has changed in one of the windows that may let the others go on, or must stop them.
void ExportForecaster::wakeAll() {
    const bool isAnyBusy = std::ranges::any_of(s_all, &ExportForecaster::isBusy);
    for (ExportForecaster* each : s_all) {
        if (isAnyBusy)
            each->stopTrial();
        else if (each->m_isWanted && !each->m_trial && !each->m_timer.isActive())
            each->m_timer.start(each->m_options.rest);
    }
}

void ExportForecaster::begin() {
    const auto request = m_state->plannedExport();
    if (!request) {
        settle();
        return;
    }
    m_trial.emplace();
    s_isTrying = true;
    run(this, m_options.trial, *request, m_trial->get_token());
}

QCoro::Task<> ExportForecaster::run(QPointer<ExportForecaster> self, Trial trial,
                                    ExportRequest request, std::stop_token stop) {
    std::optional<media::ExportForecast> forecast;
    bool wasStopped = false;
    try {
        auto task = trial(request, stop);
        forecast = co_await task;
    } catch (const media::Cancelled&) {
        wasStopped = true;
    } catch (const std::exception&) {
        // The export itself will say what is wrong.
        forecast.reset();
    }
    s_isTrying = false;
    if (self)
        self->ended(request, forecast, wasStopped || stop.stop_requested());
    wakeAll();
}

void ExportForecaster::ended(const ExportRequest& request,
                             const std::optional<media::ExportForecast>& forecast,
                             bool wasStopped) {
    m_trial.reset();
    if (wasStopped)
        return;
    m_known.prepend({request, forecast});
    if (m_known.size() > kMostKnown)
        m_known.removeLast();
    reconsider();
}

} // namespace brisklet
