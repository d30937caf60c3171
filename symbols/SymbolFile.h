#pragma once

#include "mapdata/Folders.h"
#include "platform/FileKind.h"
#include "platform/SequentialFile.h"
#include "symbols/SymbolSet.h"

inline constexpr FileKind SymbolFiles{QLatin1String("HAN files"), QLatin1String(".han")};

/// The six numbers of a symbol, in the order of all files that hold them.
HankoStyle readHankoStyle(SequentialReader& file);

/// Reads a `.han` file: comment, count, then for each record the kind with its caption and, a line each, the
/// symbol's six numbers. Raises subscript out of range beyond 100 records, and the errors of a short or
/// malformed file.
SymbolSet readSymbolSet(SequentialReader& file);

/// Writes a `.han` file.
void writeSymbolSet(SequentialWriter& file, const SymbolSet& set);

/// Puts the symbol set of the `.han` file at `path` into the shared state and keeps the file's name; the
/// last record becomes the one being edited. A load that fails leaves there what was there.
void LoadHankoData(const DriveC& drive, const QString& path, SymbolSet& set);

/// Writes the symbol set to the file at `path` in one step.
void SaveHankoData(const DriveC& drive, const QString& path, const SymbolSet& set);

/// `error`, which was raised while record k of the set was drawn, with the set's file and the record; as it
/// is where it names a file already.
RunTimeError ofRecord(const RunTimeError& error, const SymbolSet& set, int k);

/// The name of a symbol file without its ending `.han`.
QString symbolFileStem(const QString& name);

/// Path of the symbol file of that name, with or without its ending, in the current map's data folder. Raises
/// bad file name for a name that would leave the folder or that no file can have.
QString symbolFilePath(const Folders& folders, const QString& name);
