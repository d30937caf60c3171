#pragma once

#include "mapdata/Folders.h"
#include "platform/Dialogs.h"
#include "platform/FileKind.h"

/// The name of a file of the analysis as it is shown: of `path` what stands behind the last backslash,
/// without the ending of its `kind`.
QString analysisFileStem(const QString& path, const FileKind& kind);

/// Path of the file of that name, with or without its ending, in the current map's data folder. Raises bad
/// file name for a name that would leave the folder or that no file can have.
QString analysisFilePath(const Folders& folders, const QString& name, const FileKind& kind);

/// The path to save a file to that is called `name`: nothing where the user wants the file that is there to
/// stay. Raises bad file name as `analysisFilePath` does.
std::optional<QString> analysisSavePath(const Folders& folders, const QString& name, const FileKind& kind,
                                        Dialogs& dialogs);
