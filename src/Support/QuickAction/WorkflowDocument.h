#pragma once

#include <QString>

namespace brisklet {

/// The service declaration (Info.plist) of the workflow bundle, with the name of its icon.
QString serviceDeclaration(const QString& iconName);

/// The workflow (document.wflow) that passes the selected files to this program by its fixed
/// identifier, whichever build wrote it. Its three identifiers are new with each call.
QString workflowDocument();

} // namespace brisklet
