#include "Views/Controls/ControlsView.h"

#include "Export/AVFoundationExporter.h"
#include "Export/ExportSettings.h"
#include "Models/EditState.h"
#include "Models/ExportForecaster.h"
#include "Views/Controls/ControlLabels.h"
#include "Views/Controls/ExportButton.h"
#include "Views/Controls/FlatButton.h"
#include "Views/Painting/TabularLabel.h"
#include "Views/Painting/Theme.h"

#include <QActionGroup>
#include <QEvent>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPainter>
#include <QShortcut>
#include <QWidgetAction>

#include <utility>

namespace brisklet {

namespace {

/// Between the frames of neighbouring items, points.
constexpr int kSpacing = 12;
constexpr int kDividerHeight = 20;
constexpr int kForecastUpdateMs = 250;

class Divider final : public QWidget {
public:
    explicit Divider(QWidget* parent) : QWidget(parent) { setFixedSize(1, kDividerHeight); }

protected:
    void paintEvent(QPaintEvent* /*event*/) override {
        QPainter(this).fillRect(rect(), theme::quaternary(palette()));
    }
};

/// The title of a group of entries. Not a section of QMenu, whose title some styles do not show.
QLabel* addTitle(QMenu& menu, const QString& title) {
    constexpr QMargins kMargins(10, 6, 10, 2);
    auto* label = new QLabel(title);
    label->setContentsMargins(kMargins);
    auto* action = new QWidgetAction(&menu);
    action->setText(title);
    action->setDefaultWidget(label);
    action->setEnabled(false);
    menu.addAction(action);
    return label;
}

void describe(FlatButton& button, const QString& help) {
    button.setToolTip(help);
    button.setAccessibleName(help);
}

} // namespace

ControlsView::ControlsView(std::shared_ptr<EditState> state, QWidget* parent)
    : QWidget(parent),
      m_state(std::move(state)),
      m_playButton(new FlatButton),
      m_muteButton(new FlatButton),
      m_rotateButton(new FlatButton),
      m_cropButton(new FlatButton),
      m_cropSize(new TabularLabel),
      m_exportButton(new ExportButton),
      m_forecaster(new ExportForecaster(m_state, this)) {
    buildLayout();
    buildMenu();
    addKeys();
    observe();
    showPlayState();
    showMute();
    showRotation();
    showCrop();
    showExport();
    showForecast();
    showFonts();
}

ControlsView::~ControlsView() {
    m_state->disconnect(this);
}

int ControlsView::leftInset() {
    return FlatButton::kPadding;
}

void ControlsView::buildLayout() {
    m_muteButton->setCheckable(true);
    m_cropButton->setCheckable(true);

    // The buttons extend kPadding beyond their frames on each side.
    constexpr int kBeside = kSpacing - FlatButton::kPadding;
    constexpr int kBetween = kSpacing - 2 * FlatButton::kPadding;
    auto* row = new QHBoxLayout(this);
    row->setContentsMargins({});
    row->setSpacing(0);
    row->addWidget(m_playButton);
    row->addSpacing(kBeside);
    row->addWidget(new Divider(this));
    row->addSpacing(kBeside);
    row->addWidget(m_muteButton);
    row->addSpacing(kBetween);
    row->addWidget(m_rotateButton);
    row->addSpacing(kBetween);
    row->addWidget(m_cropButton);
    row->addSpacing(kBeside);
    row->addWidget(m_cropSize);
    row->addSpacing(kSpacing);
    row->addStretch();
    row->addWidget(m_exportButton);
}

void ControlsView::buildMenu() {
    auto* menu = new QMenu(m_exportButton);
    //: For screen readers: the menu of formats and resolutions.
    menu->setAccessibleName(tr("Export options"));
    addFormats(*menu);
    addResolutions(*menu);
    menu->addSeparator();
    //: Format and resolution.
    const QAction* reset = menu->addAction(tr("Reset to Defaults"));
    connect(reset, &QAction::triggered, this, [] {
        ExportSettings::shared().setFormat(ExportFormat::mp4);
        ExportSettings::shared().setResolution(ExportResolution::original);
    });
    menu->addSeparator();
    m_forecastLabel = addTitle(*menu, {});
    m_forecastLabel->setContentsMargins(10, 4, 10, 6);
    m_forecastLine = menu->actions().constLast();
    m_exportButton->setMenu(menu);
    connect(menu, &QMenu::aboutToShow, this, &ControlsView::showForecast);
    connect(menu, &QMenu::aboutToHide, m_exportButton, qOverload<>(&QWidget::update));
}

void ControlsView::addFormats(QMenu& menu) {
    //: The title of a group of entries: MP4, MOV.
    m_menuTitles << addTitle(menu, tr("Format"));
    auto* group = new QActionGroup(&menu);
    for (const ExportFormat format : kAllExportFormats) {
        QAction* action = menu.addAction(rawValue(format));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [format] { ExportSettings::shared().setFormat(format); });
        const auto follow = [action, format] {
            action->setChecked(ExportSettings::shared().format() == format);
        };
        connect(&ExportSettings::shared(), &ExportSettings::formatChanged, action, follow);
        follow();
    }
}

void ControlsView::addResolutions(QMenu& menu) {
    menu.addSeparator();
    //: The title of a group of entries: Original, 1080p, 720p …
    m_menuTitles << addTitle(menu, tr("Resolution"));
    auto* group = new QActionGroup(&menu);
    for (const ExportResolution resolution : kAllExportResolutions) {
        QAction* action = menu.addAction(label(resolution));
        action->setCheckable(true);
        group->addAction(action);
        connect(action, &QAction::triggered, this,
                [resolution] { ExportSettings::shared().setResolution(resolution); });
        const auto follow = [action, resolution] {
            action->setChecked(ExportSettings::shared().resolution() == resolution);
        };
        connect(&ExportSettings::shared(), &ExportSettings::resolutionChanged, action, follow);
        follow();
    }
}

void ControlsView::addKeys() {
    const auto add = [this](Qt::Key key, FlatButton* button, const QString& effect) {
        auto* shortcut = new QShortcut(QKeySequence(key), this);
        shortcut->setWhatsThis(effect);
        shortcut->setAutoRepeat(false);
        connect(shortcut, &QShortcut::activated, button, &FlatButton::click);
    };
    add(Qt::Key_Space, m_playButton, tr("Play or pause"));
    add(Qt::Key_M, m_muteButton, tr("Mute or unmute"));
    add(Qt::Key_R, m_rotateButton, tr("Rotate left"));
    add(Qt::Key_K, m_cropButton, tr("Crop or remove the crop"));
}

void ControlsView::observe() {
    connect(m_playButton, &FlatButton::clicked, this, [this] { m_state->togglePlayback(); });
    connect(m_muteButton, &FlatButton::clicked, this, &ControlsView::toggleMute);
    connect(m_rotateButton, &FlatButton::clicked, this, [this] { m_state->rotateLeft(); });
    connect(m_cropButton, &FlatButton::clicked, this, &ControlsView::toggleCrop);
    connect(m_exportButton, &ExportButton::clicked, this,
            [this] { m_state->presentExportPanel(); });

    const EditState* state = m_state.get();
    connect(state, &EditState::isPlayingChanged, this, &ControlsView::showPlayState);
    connect(state, &EditState::isMutedChanged, this, &ControlsView::showMute);
    connect(state, &EditState::rotationChanged, this, &ControlsView::showRotation);
    connect(state, &EditState::rotationChanged, this, &ControlsView::showCrop);
    connect(state, &EditState::cropRectChanged, this, &ControlsView::showCrop);
    connect(state, &EditState::displaySizeChanged, this, &ControlsView::showCrop);
    connect(state, &EditState::exportProgressChanged, this, &ControlsView::showExport);
    m_forecastUpdate.setSingleShot(true);
    m_forecastUpdate.setInterval(kForecastUpdateMs);
    connect(&m_forecastUpdate, &QTimer::timeout, this, &ControlsView::showForecast);
    for (const auto changed : {&EditState::videoURLChanged, &EditState::trimStartChanged,
                               &EditState::trimEndChanged, &EditState::cropRectChanged,
                               &EditState::rotationChanged, &EditState::exportForecastChanged})
        connect(state, changed, this, &ControlsView::showForecastSoon);

    const ExportSettings& settings = ExportSettings::shared();
    connect(&settings, &ExportSettings::resolutionChanged, this, &ControlsView::showForecastSoon);
    connect(&settings, &ExportSettings::formatChanged, this, &ControlsView::showExport);
    connect(&settings, &ExportSettings::resolutionChanged, this, &ControlsView::showExport);
}

void ControlsView::toggleMute() {
    m_state->setMuted(!m_state->isMuted());
    showMute();
}

void ControlsView::toggleCrop() {
    m_state->toggleCrop();
    showCrop();
}

void ControlsView::showPlayState() {
    m_playButton->setSymbol(m_state->isPlaying() ? Symbol::pause : Symbol::play);
    //: What the button does when it is pressed; so are the following.
    describe(*m_playButton, m_state->isPlaying() ? tr("Pause") : tr("Play"));
}

void ControlsView::showMute() {
    const bool isMuted = m_state->isMuted();
    m_muteButton->setChecked(isMuted);
    m_muteButton->setSymbol(isMuted ? Symbol::speakerSlashed : Symbol::speaker);
    m_muteButton->setTint(isMuted ? FlatButton::Tint::red : FlatButton::Tint::primary);
    describe(*m_muteButton, isMuted ? tr("Unmute (audio will be removed on export)") : tr("Mute"));
}

void ControlsView::showRotation() {
    m_rotateButton->setSymbol(Symbol::rotateLeft);
    m_rotateButton->setTint(m_state->rotation() != 0 ? FlatButton::Tint::accent
                                                     : FlatButton::Tint::primary);
    describe(*m_rotateButton, tr("Rotate left"));
}

void ControlsView::showCrop() {
    const auto& crop = m_state->cropRect();
    m_cropButton->setSymbol(Symbol::crop);
    m_cropButton->setChecked(crop.has_value());
    m_cropButton->setTint(crop ? FlatButton::Tint::accent : FlatButton::Tint::primary);
    //: Commands: makes a crop frame, or removes it.
    describe(*m_cropButton, crop ? tr("Remove crop") : tr("Crop"));
    m_cropSize->setText(cropLabel(m_state->rotatedDisplaySize(), crop));
    m_cropSize->setVisible(crop.has_value());
}

void ControlsView::showExport() {
    const ExportSettings& settings = ExportSettings::shared();
    m_exportButton->setText(exportLabel(settings.format(), settings.resolution()));
    const bool isExporting = m_state->exportProgress().has_value();
    // Disabling the button would pass its focus on to another control, where the same keys do other
    // things. The parent of the controls has the focus meanwhile.
    QWidget* holder = parentWidget();
    if (isExporting && holder && window()->focusWidget() == m_exportButton) {
        holder->setFocus(Qt::OtherFocusReason);
        m_hadFocus = true;
    }
    m_exportButton->setEnabled(!isExporting);
    if (!isExporting && std::exchange(m_hadFocus, false) && window()->focusWidget() == holder)
        m_exportButton->setFocus(Qt::OtherFocusReason);
}

void ControlsView::showForecastSoon() {
    if (m_exportButton->menu()->isVisible())
        showForecast();
    else if (!m_forecastUpdate.isActive())
        m_forecastUpdate.start();
}

void ControlsView::showForecast() {
    const auto request = m_state->plannedExport();
    const QString line = request ? forecastLabel(request->endTime - request->startTime,
                                                 AVFoundationExporter::outputSize(*request),
                                                 m_state->exportForecast())
                                 : QString();
    m_forecastLabel->setText(line);
    m_forecastLine->setText(line);
    m_exportButton->describe(line);
}

void ControlsView::showFonts() {
    QPalette secondary;
    secondary.setColor(QPalette::WindowText, theme::secondary(palette()));
    for (QLabel* label : QList<QLabel*>{m_cropSize, m_forecastLabel} + m_menuTitles) {
        label->setFont(theme::captionFont(font()));
        label->setPalette(secondary);
    }
}

void ControlsView::changeEvent(QEvent* event) {
    QWidget::changeEvent(event);
    if (event->type() == QEvent::FontChange || event->type() == QEvent::PaletteChange)
        showFonts();
}

} // namespace brisklet
