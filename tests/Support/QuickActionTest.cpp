#include "Support/QuickAction/QuickAction.h"

#include "TestSupport/Process.h"
#include "TestSupport/TemporaryFolder.h"

#include <QString>

#include <gmock/gmock.h>

#include <filesystem>
#include <fstream>
#include <regex>
#include <set>
#include <sstream>
#include <string>
#include <vector>

namespace {

namespace fs = std::filesystem;
using brisklet::QuickAction;

constexpr const char* kServiceDeclaration = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>NSServices</key>
	<array>
		<dict>
			<key>NSBackgroundColorName</key>
			<string>background</string>
			<key>NSBackgroundSystemColorName</key>
			<string>systemYellowColor</string>
			<key>NSIconName</key>
			<string>NSActionTemplate</string>
			<key>NSMenuItem</key>
			<dict>
				<key>default</key>
				<string>Trim Video</string>
			</dict>
			<key>NSMessage</key>
			<string>runWorkflowAsService</string>
			<key>NSRequiredContext</key>
			<dict>
				<key>NSApplicationIdentifier</key>
				<string>com.apple.finder</string>
			</dict>
			<key>NSSendFileTypes</key>
			<array>
				<string>public.movie</string>
			</array>
		</dict>
	</array>
</dict>
</plist>)";

/// The identifiers stand here as numbers: each writing has its own.
constexpr const char* kWorkflow = R"(<?xml version="1.0" encoding="UTF-8"?>
<!DOCTYPE plist PUBLIC "-//Apple//DTD PLIST 1.0//EN" "http://www.apple.com/DTDs/PropertyList-1.0.dtd">
<plist version="1.0">
<dict>
	<key>AMApplicationBuild</key>
	<string>528</string>
	<key>AMApplicationVersion</key>
	<string>2.10</string>
	<key>AMDocumentVersion</key>
	<string>2</string>
	<key>actions</key>
	<array>
		<dict>
			<key>action</key>
			<dict>
				<key>AMAccepts</key>
				<dict>
					<key>Container</key>
					<string>List</string>
					<key>Optional</key>
					<true/>
					<key>Types</key>
					<array>
						<string>com.apple.cocoa.string</string>
					</array>
				</dict>
				<key>AMActionVersion</key>
				<string>2.0.3</string>
				<key>AMApplication</key>
				<array>
					<string>Automator</string>
				</array>
				<key>AMParameterProperties</key>
				<dict>
					<key>COMMAND_STRING</key>
					<dict/>
					<key>CheckedForUserDefaultShell</key>
					<dict/>
					<key>inputMethod</key>
					<dict/>
					<key>shell</key>
					<dict/>
					<key>source</key>
					<dict/>
				</dict>
				<key>AMProvides</key>
				<dict>
					<key>Container</key>
					<string>List</string>
					<key>Types</key>
					<array>
						<string>com.apple.cocoa.string</string>
					</array>
				</dict>
				<key>ActionBundlePath</key>
				<string>/System/Library/Automator/Run Shell Script.action</string>
				<key>ActionName</key>
				<string>Run Shell Script</string>
				<key>ActionParameters</key>
				<dict>
					<key>COMMAND_STRING</key>
					<string>open -b com.quorvan.brisklet "$@"</string>
					<key>CheckedForUserDefaultShell</key>
					<true/>
					<key>inputMethod</key>
					<integer>1</integer>
					<key>shell</key>
					<string>/bin/zsh</string>
					<key>source</key>
					<string></string>
				</dict>
				<key>BundleIdentifier</key>
				<string>com.apple.RunShellScript</string>
				<key>CFBundleVersion</key>
				<string>2.0.3</string>
				<key>CanShowSelectedItemsWhenRun</key>
				<false/>
				<key>CanShowWhenRun</key>
				<true/>
				<key>Category</key>
				<array>
					<string>AMCategoryUtilities</string>
				</array>
				<key>Class Name</key>
				<string>RunShellScriptAction</string>
				<key>InputUUID</key>
				<string>1</string>
				<key>Keywords</key>
				<array/>
				<key>OutputUUID</key>
				<string>2</string>
				<key>UUID</key>
				<string>3</string>
				<key>UnlocalizedApplications</key>
				<array>
					<string>Automator</string>
				</array>
				<key>arguments</key>
				<dict/>
			</dict>
		</dict>
	</array>
	<key>connectors</key>
	<dict/>
	<key>workflowMetaData</key>
	<dict>
		<key>applicationBundleIDsByPath</key>
		<dict/>
		<key>applicationPaths</key>
		<array/>
		<key>inputTypeIdentifier</key>
		<string>com.apple.Automator.fileSystemObject</string>
		<key>outputTypeIdentifier</key>
		<string>com.apple.Automator.nothing</string>
		<key>presentationMode</key>
		<integer>15</integer>
		<key>processesInput</key>
		<integer>0</integer>
		<key>serviceApplicationBundleID</key>
		<string>com.apple.finder</string>
		<key>serviceApplicationPath</key>
		<string>/System/Library/CoreServices/Finder.app</string>
		<key>serviceInputTypeIdentifier</key>
		<string>com.apple.Automator.fileSystemObject</string>
		<key>serviceOutputTypeIdentifier</key>
		<string>com.apple.Automator.nothing</string>
		<key>serviceProcessesInput</key>
		<integer>0</integer>
		<key>systemImageName</key>
		<string>NSActionTemplate</string>
		<key>useAutomaticInputType</key>
		<integer>0</integer>
		<key>workflowTypeIdentifier</key>
		<string>com.apple.Automator.servicesMenu</string>
	</dict>
</dict>
</plist>)";

std::string contentOf(const fs::path& path) {
    std::ifstream file(path, std::ios::binary);
    std::ostringstream content;
    content << file.rdbuf();
    return content.str();
}

/// The identifiers of a workflow in the order in which they stand; each is replaced by its number.
std::vector<std::string> takeIdentifiers(std::string& workflow) {
    static const std::regex kIdentifier(
        "[0-9A-F]{8}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{4}-[0-9A-F]{12}");
    std::vector<std::string> found;
    std::smatch match;
    while (std::regex_search(workflow, match, kIdentifier)) {
        found.push_back(match.str());
        workflow = match.prefix().str() + std::to_string(found.size()) + match.suffix().str();
    }
    return found;
}

class QuickActionTest : public testing::Test {
protected:
    static void SetUpTestSuite() {
        // The place of the bundle is computed once: all tests share one home.
        static const testsupport::TemporaryFolder home;
        qputenv("HOME", home.path().c_str());
    }

    QuickActionTest() { fs::remove_all(QuickAction::workflowPath()); }

    ~QuickActionTest() override { qunsetenv("XDG_DATA_DIRS"); }

    testsupport::TemporaryFolder m_folder;
    const fs::path m_bundle = m_folder / "Trim Video.workflow";
};

TEST_F(QuickActionTest, standsAmongTheServicesOfTheUser) {
    EXPECT_EQ(QuickAction::workflowPath(),
              fs::path(qgetenv("HOME").toStdString()) / "Library/Services/Trim Video.workflow");
}

TEST_F(QuickActionTest, writesTheServiceDeclarationToTheByte) {
    QuickAction::writeWorkflow(m_bundle);
    EXPECT_EQ(contentOf(m_bundle / "Contents/Info.plist"), kServiceDeclaration);
    EXPECT_FALSE(fs::exists(m_bundle / "Contents/Resources"));
}

TEST_F(QuickActionTest, writesTheWorkflowToTheByte) {
    QuickAction::writeWorkflow(m_bundle);
    std::string workflow = contentOf(m_bundle / "Contents/document.wflow");
    const auto identifiers = takeIdentifiers(workflow);
    EXPECT_EQ(workflow, kWorkflow);
    EXPECT_EQ(std::set(identifiers.begin(), identifiers.end()).size(), 3U);
}

TEST_F(QuickActionTest, isReadByAnotherReaderOfPropertyLists) {
    QuickAction::writeWorkflow(m_bundle);
    const auto read = testsupport::runProcess(
        {"python3", "-c",
         "import plistlib, sys\n"
         "info = plistlib.load(open(sys.argv[1] + '/Contents/Info.plist', 'rb'))\n"
         "service = info['NSServices'][0]\n"
         "print(service['NSMenuItem']['default'], service['NSSendFileTypes'],\n"
         "      service['NSRequiredContext']['NSApplicationIdentifier'])\n"
         "flow = plistlib.load(open(sys.argv[1] + '/Contents/document.wflow', 'rb'))\n"
         "action = flow['actions'][0]['action']\n"
         "print(action['ActionParameters']['COMMAND_STRING'])\n"
         "print(repr(action['ActionParameters']['source']),\n"
         "      action['AMAccepts']['Optional'], action['Keywords'],\n"
         "      flow['workflowMetaData']['presentationMode'])\n",
         m_bundle.string()});
    EXPECT_EQ(read.errors, "");
    EXPECT_EQ(read.output, "Trim Video ['public.movie'] com.apple.finder\n"
                           "open -b com.quorvan.brisklet \"$@\"\n"
                           "'' True [] 15\n");
}

TEST_F(QuickActionTest, replacesTheWholeBundleAndItsIdentifiers) {
    QuickAction::writeWorkflow(m_bundle);
    std::string first = contentOf(m_bundle / "Contents/document.wflow");
    std::ofstream(m_bundle / "Contents/stray") << "left over";
    QuickAction::writeWorkflow(m_bundle);
    std::string second = contentOf(m_bundle / "Contents/document.wflow");
    EXPECT_FALSE(fs::exists(m_bundle / "Contents/stray"));
    const auto before = takeIdentifiers(first);
    const auto after = takeIdentifiers(second);
    for (const std::string& identifier : after)
        EXPECT_THAT(before, testing::Not(testing::Contains(identifier)));
}

TEST_F(QuickActionTest, takesThePlaceOfAFile) {
    std::ofstream(m_bundle) << "no bundle";
    QuickAction::writeWorkflow(m_bundle);
    EXPECT_TRUE(fs::exists(m_bundle / "Contents/Info.plist"));
}

TEST_F(QuickActionTest, bringsTheIconOfTheProgramAlong) {
    fs::create_directory(m_folder / "brisklet");
    std::ofstream(m_folder / "brisklet/AppIcon.icns") << "icon";
    qputenv("XDG_DATA_DIRS", m_folder.path().c_str());
    QuickAction::writeWorkflow(m_bundle);
    EXPECT_EQ(contentOf(m_bundle / "Contents/Resources/workflowCustomImage.icns"), "icon");
    std::string expected = kServiceDeclaration;
    expected.replace(expected.find("NSActionTemplate"), std::string("NSActionTemplate").size(),
                     "workflowCustomImage");
    EXPECT_EQ(contentOf(m_bundle / "Contents/Info.plist"), expected);
}

TEST_F(QuickActionTest, saysWhyItCannotBeWritten) {
    std::ofstream(m_folder / "file") << "no folder";
    try {
        QuickAction::writeWorkflow(m_folder / "file" / "Trim Video.workflow");
        FAIL() << "A bundle inside a file was written.";
    } catch (const std::runtime_error& error) {
        EXPECT_STREQ(error.what(), "“Contents” couldn’t be made: Not a directory");
    }
}

TEST_F(QuickActionTest, learnsFromTheDiskWhetherItIsInstalled) {
    EXPECT_FALSE(QuickAction().isInstalled());
    fs::create_directories(QuickAction::workflowPath());
    EXPECT_TRUE(QuickAction().isInstalled());
}

TEST_F(QuickActionTest, tellsWhenItIsInstalledAndRemoved) {
    QuickAction action;
    int changes = 0;
    QObject::connect(&action, &QuickAction::isInstalledChanged, [&changes] { ++changes; });
    action.install();
    EXPECT_TRUE(action.isInstalled());
    EXPECT_TRUE(fs::exists(QuickAction::workflowPath() / "Contents/document.wflow"));
    action.install();
    EXPECT_EQ(changes, 1);
    action.uninstall();
    EXPECT_FALSE(action.isInstalled());
    EXPECT_FALSE(fs::exists(QuickAction::workflowPath()));
    EXPECT_EQ(changes, 2);
}

TEST_F(QuickActionTest, refusesToRemoveWhatIsGoneAndStaysInstalled) {
    QuickAction action;
    action.install();
    fs::remove_all(QuickAction::workflowPath());
    EXPECT_THROW(action.uninstall(), std::runtime_error);
    EXPECT_TRUE(action.isInstalled());
    EXPECT_FALSE(QuickAction().isInstalled());
}

} // namespace
