#include "Support/QuickAction/WorkflowDocument.h"

#include "Support/QuickAction/PropertyList.h"

#include <QUuid>

namespace brisklet {

namespace {

QString freshIdentifier() {
    return QUuid::createUuid().toString(QUuid::WithoutBraces).toUpper();
}

void writeStringLists(PropertyList& list, bool accepts) {
    list.beginDictionary().key(u"Container").string(u"List");
    if (accepts)
        list.key(u"Optional").boolean(true);
    list.key(u"Types").singleString(u"com.apple.cocoa.string").endDictionary();
}

void writeParameterProperties(PropertyList& list) {
    list.key(u"AMParameterProperties").beginDictionary();
    for (const char16_t* name :
         {u"COMMAND_STRING", u"CheckedForUserDefaultShell", u"inputMethod", u"shell", u"source"})
        list.key(name).emptyDictionary();
    list.endDictionary();
}

void writeParameters(PropertyList& list) {
    list.key(u"ActionParameters").beginDictionary();
    list.key(u"COMMAND_STRING").string(u"open -b com.quorvan.brisklet \"$@\"");
    list.key(u"CheckedForUserDefaultShell").boolean(true);
    list.key(u"inputMethod").integer(1);
    list.key(u"shell").string(u"/bin/zsh");
    list.key(u"source").string(u"");
    list.endDictionary();
}

void writeAction(PropertyList& list) {
    list.beginDictionary();
    list.key(u"AMAccepts");
    writeStringLists(list, true);
    list.key(u"AMActionVersion").string(u"2.0.3");
    list.key(u"AMApplication").singleString(u"Automator");
    writeParameterProperties(list);
    list.key(u"AMProvides");
    writeStringLists(list, false);
    list.key(u"ActionBundlePath").string(u"/System/Library/Automator/Run Shell Script.action");
    list.key(u"ActionName").string(u"Run Shell Script");
    writeParameters(list);
    list.key(u"BundleIdentifier").string(u"com.apple.RunShellScript");
    list.key(u"CFBundleVersion").string(u"2.0.3");
    list.key(u"CanShowSelectedItemsWhenRun").boolean(false);
    list.key(u"CanShowWhenRun").boolean(true);
    list.key(u"Category").singleString(u"AMCategoryUtilities");
    list.key(u"Class Name").string(u"RunShellScriptAction");
    list.key(u"InputUUID").string(freshIdentifier());
    list.key(u"Keywords").emptyArray();
    list.key(u"OutputUUID").string(freshIdentifier());
    list.key(u"UUID").string(freshIdentifier());
    list.key(u"UnlocalizedApplications").singleString(u"Automator");
    list.key(u"arguments").emptyDictionary();
    list.endDictionary();
}

void writeMetaData(PropertyList& list) {
    list.key(u"workflowMetaData").beginDictionary();
    list.key(u"applicationBundleIDsByPath").emptyDictionary();
    list.key(u"applicationPaths").emptyArray();
    list.key(u"inputTypeIdentifier").string(u"com.apple.Automator.fileSystemObject");
    list.key(u"outputTypeIdentifier").string(u"com.apple.Automator.nothing");
    list.key(u"presentationMode").integer(15);
    list.key(u"processesInput").integer(0);
    list.key(u"serviceApplicationBundleID").string(u"com.apple.finder");
    list.key(u"serviceApplicationPath").string(u"/System/Library/CoreServices/Finder.app");
    list.key(u"serviceInputTypeIdentifier").string(u"com.apple.Automator.fileSystemObject");
    list.key(u"serviceOutputTypeIdentifier").string(u"com.apple.Automator.nothing");
    list.key(u"serviceProcessesInput").integer(0);
    list.key(u"systemImageName").string(u"NSActionTemplate");
    list.key(u"useAutomaticInputType").integer(0);
    list.key(u"workflowTypeIdentifier").string(u"com.apple.Automator.servicesMenu");
    list.endDictionary();
}

} // namespace

QString serviceDeclaration(const QString& iconName) {
    PropertyList list;
    list.key(u"NSServices").beginArray().beginDictionary();
    list.key(u"NSBackgroundColorName").string(u"background");
    list.key(u"NSBackgroundSystemColorName").string(u"systemYellowColor");
    list.key(u"NSIconName").string(iconName);
    list.key(u"NSMenuItem").beginDictionary();
    list.key(u"default").string(u"Trim Video").endDictionary();
    list.key(u"NSMessage").string(u"runWorkflowAsService");
    list.key(u"NSRequiredContext").beginDictionary();
    list.key(u"NSApplicationIdentifier").string(u"com.apple.finder").endDictionary();
    list.key(u"NSSendFileTypes").singleString(u"public.movie");
    list.endDictionary().endArray();
    return list.finish();
}

QString workflowDocument() {
    PropertyList list;
    list.key(u"AMApplicationBuild").string(u"528");
    list.key(u"AMApplicationVersion").string(u"2.10");
    list.key(u"AMDocumentVersion").string(u"2");
    list.key(u"actions").beginArray().beginDictionary().key(u"action");
    writeAction(list);
    list.endDictionary().endArray();
    list.key(u"connectors").emptyDictionary();
    writeMetaData(list);
    return list.finish();
}

} // namespace brisklet
