#pragma once

#include "platform/BoundedArray.h"
#include "platform/Saved.h"

#include <QString>

/// The six numbers of a symbol: what `DrawHanko` draws.
struct HankoStyle
{
    /// Symbol number, 0 to 152 + 4 times the number of polygon designs.
    qint16 HankoNo = 0;
    /// Colour numbers 0..15 of the outline and of the fill.
    qint16 LineColor = 0;
    qint16 PaintColor = 0;
    /// 0 outline only, otherwise filled where the design can be.
    qint16 PaintOn = 0;
    /// 0 small, 1 normal, 2 large.
    qint16 SymbolSize = 0;
    /// 0 thin, 1 normal, 2 thick.
    qint16 LineThick = 0;

    bool operator==(const HankoStyle&) const = default;
};

/// For each kind of word form its symbol and its caption: at most 100 records, numbered from 1. Record 0 is a
/// scratch record of the editor.
struct SymbolRecords
{
    /// Free comment.
    QString Explain;
    int NHanrei = 0;
    BoundedArray<QString, Bounds{0, 100}> HankoWord;
    BoundedArray<QString, Bounds{0, 100}> HankoCaption;
    BoundedArray<HankoStyle, Bounds{0, 100}> Hanko;

    /// Whether the sets are the same: the scratch record and what stands behind the last one do not count.
    bool operator==(const SymbolRecords& other) const;
};

/// A symbol set that is being edited.
struct SymbolSet : SymbolRecords
{
    /// Name of the symbol file last opened, without its folder, and its path.
    QString SymbolFileName;
    QString SymbolFilePath;

    /// The record that is being edited, 0..100; beyond `NHanrei` a new one.
    int CurrentHanko = 0;
    Saved<SymbolRecords> SavedRecords;
    /// How many sets have been read; tells whoever shows a set that another one took its place.
    int HankoReading = 0;
};

/// Whether the set holds records or a comment that its file does not hold.
bool isSymbolSetUnsaved(const SymbolSet& set);
