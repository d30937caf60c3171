#pragma once

#include "platform/BoundedArray.h"

#include <QString>

/// The answers to one survey item: the word forms of each locality.
struct ItemAnswers
{
    qint16 NLocate = 0;
    QString Komoku;
    /// Caption of the item.
    QString Hanrei;
    QString Comment;
    /// Number of word forms of locality i.
    BoundedArray<qint16, Bounds{1, 1000}> WordCount;
    /// The j-th word form of locality i.
    BoundedArray<QString, Bounds{1, 1000}, Bounds{1, 5}> WordData;

    /// Number of word forms; the n-th in file order is `WordList(n)`, found as number `WordSub(n)` at
    /// locality `WordLocate(n)`.
    qint16 WordTotal = 0;
    BoundedArray<qint16, Bounds{1, 5000}> WordLocate;
    BoundedArray<qint16, Bounds{1, 5000}> WordSub;
    BoundedArray<QString, Bounds{1, 5000}> WordList;
};

/// The distinct word forms of an item.
struct WordKinds
{
    int NKind = 0;
    BoundedArray<QString, Bounds{1, 200}> KindWord;
    /// How many word forms of the item equal each kind.
    BoundedArray<qint16, Bounds{1, 200}> KindCount;
    /// The kind of `WordData(i, j)` in order of first appearance; 0 where there is none.
    BoundedArray<int, Bounds{1, 1000}, Bounds{1, 10}> KindIndex;
    /// Length of the longest word form; the very first one does not count.
    qint16 MaxKindLen = 0;
};

/// The loaded item.
struct LinguisticData : ItemAnswers, WordKinds
{
    /// Name of its file, without its folder.
    QString ItemFileName;
    /// Path of its file.
    QString ItemPath;
    /// Path of its kinds file.
    QString KindsPath;
    /// How often an item was loaded or dropped; tells whoever shows the item that it is another one now.
    int ItemReading = 0;
};
