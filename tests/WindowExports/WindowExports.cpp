#include "Application.h"
#include "Export/ExportSettings.h"
#include "Models/EditState.h"
#include "QtSupport/EventPump.h"
#include "Support/FileUrl.h"
#include "Support/Workers.h"
#include "TestSupport/Fixture.h"
#include "WindowExports/ExportTable.h"

#include <cstdio>
#include <exception>
#include <filesystem>
#include <memory>
#include <stdexcept>

/// window-exports FOLDER: makes each export of the table in the folder, as a window of the program
/// does: by its model, under its application object, in the locale that the environment asks for.
namespace {

using brisklet::EditState;
using brisklet::ExportSettings;
using testsupport::ExportRow;

void waitFor(const char* what, const std::function<bool()>& condition) {
    if (!testsupport::pumpUntil(condition))
        throw std::runtime_error(std::string("waited in vain for the ") + what);
}

void edit(EditState& state, const ExportRow& row) {
    for (int turn = 0; turn < row.quarterTurns; ++turn)
        state.rotateLeft();
    state.setCropRect(row.crop);
    state.setTrimStart(row.start);
    state.setTrimEnd(row.end);
    state.setMuted(row.isMuted);
    ExportSettings::shared().setFormat(row.format);
    ExportSettings::shared().setResolution(row.resolution);
}

void exportRow(const ExportRow& row, const std::filesystem::path& folder) {
    const auto state = std::make_shared<EditState>();
    state->load(brisklet::urlOf(testsupport::makeFixture(row.source).path));
    waitFor("video", [&] { return state->videoURL() && !state->thumbnails().isEmpty(); });
    edit(*state, row);
    state->exportTo(brisklet::urlOf(folder / outputName(row)));
    waitFor("export", [&] { return !state->exportProgress(); });
    if (state->errorMessage())
        throw std::runtime_error(row.name + ": " + state->errorMessage()->toStdString());
}

} // namespace

int main(int argc, char** argv) {
    const brisklet::Application application(argc, argv);
    int status = 0;
    try {
        for (const ExportRow& row : testsupport::exportTable())
            exportRow(row, argv[1]);
    } catch (const std::exception& error) {
        std::fprintf(stderr, "%s\n", error.what());
        status = 1;
    }
    brisklet::waitForWorkers();
    return status;
}
