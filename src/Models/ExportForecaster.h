#pragma once

#include "Export/ExportRequest.h"
#include "Media/ExportForecast.h"

#include <QCoroTask>
#include <QElapsedTimer>
#include <QList>
#include <QObject>
#include <QPointer>
#include <QTimer>

#include <chrono>
#include <functional>
#include <memory>
#include <optional>
#include <stop_token>
#include <utility>

namespace brisklet {

class EditState;

/// Keeps the export forecast of one window’s model up to date, without being in anyone’s way.
///
///     waiting ──the user rests──▶ trying ──▶ known ──the edit changes──▶ waiting
///        ▲───────any input───────────┘
///
/// A trial begins once there has been no input for a while, while no window plays or exports, one
/// window at a time; input of any kind stops it at once. When the forecast is known there is
/// neither a timer nor anything else left that runs. What was found out is kept for edits that come
/// back. Main thread.
class ExportForecaster final : public QObject {
    Q_OBJECT

public:
    /// What finds out; throws media::Cancelled after a stop request. None: nothing could be told.
    using Trial = std::function<QCoro::Task<std::optional<media::ExportForecast>>(
        ExportRequest request, std::stop_token stop)>;

    struct Options {
        /// For how long there has to be no input.
        std::chrono::milliseconds rest{1000};
        /// Without one: trial encodes on a worker.
        Trial trial = {};
    };

    /// Lets go of the model when it is destroyed.
    explicit ExportForecaster(std::shared_ptr<EditState> state, QObject* parent = nullptr)
        : ExportForecaster(std::move(state), Options(), parent) {}

    ExportForecaster(std::shared_ptr<EditState> state, Options options, QObject* parent = nullptr);
    ~ExportForecaster() override;

    /// Whether a trial is wanted and has not ended.
    [[nodiscard]] bool isPending() const { return m_isWanted; }

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Known {
        ExportRequest request;
        std::optional<media::ExportForecast> forecast;
    };

    void observe();
    void forgetAll();
    void reconsider();
    void want();
    void settle();
    void stopTrial();
    void rested();
    void begin();
    static QCoro::Task<> run(QPointer<ExportForecaster> self, Trial trial, ExportRequest request,
                             std::stop_token stop);
    void ended(const ExportRequest& request, const std::optional<media::ExportForecast>& forecast,
               bool wasStopped);
    [[nodiscard]] bool isBusy() const;
    static bool mayBegin();
    static void wakeAll();

    std::shared_ptr<EditState> m_state;
    Options m_options;
    QTimer m_timer;
    QElapsedTimer m_sinceInput;
    /// Of the running trial.
    std::optional<std::stop_source> m_trial;
    bool m_isWanted = false;
    QList<Known> m_known;

    /// Of all windows, and whether a trial of any of them runs.
    static inline QList<ExportForecaster*> s_all;
    static inline bool s_isTrying = false;
};

} // namespace brisklet
