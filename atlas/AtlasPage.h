#pragma once

#include "lingdata/LinguisticData.h"
#include "mapdata/Folders.h"
#include "platform/Saved.h"
#include "symbols/SymbolSet.h"

#include <QByteArray>
#include <QStringList>

#include <vector>

/// The word forms of each locality, from locality 1 on.
using LocalityWords = std::vector<QStringList>;

LocalityWords localityWords(const ItemAnswers& item);
/// Puts `words` (at most five) in place of those of locality i. The list of all word forms is made anew.
/// Raises subscript out of range for a locality that the item does not have, and for more word forms.
void setLocalityWords(ItemAnswers& item, int i, const QStringList& words);

/// A page of the atlas: an item and its symbol set, as they are now and as their files hold them.
struct AtlasPage
{
    LinguisticData item;
    /// Its path is that of the file that the symbols are saved to, which may not exist yet.
    SymbolSet symbols;
    Saved<LocalityWords> savedWords;
    /// That the item cannot be read and why; empty where it can. Such a page has no word forms and is not
    /// edited.
    QString trouble;
    /// That the symbol file cannot be read and why; empty where it can, or where there is none. Such a set is
    /// not edited, so that the file is left as it is.
    QString symbolTrouble;
    /// What the two files held when they were read or written last.
    QByteArray itemFile;
    QByteArray symbolFile;

    bool areWordsUnsaved() const { return savedWords.differs(localityWords(item)); }
    bool areSymbolsUnsaved() const { return symbols.SavedRecords.differs(symbols); }
    bool isUnsaved() const { return areWordsUnsaved() || areSymbolsUnsaved(); }
};

/// Reads the item at `itemPath` with its kinds, and the symbol file of its name. An item of more kinds than
/// the forms can show has none here. What cannot be read says why in the page.
AtlasPage readAtlasPage(const Folders& folders, const QString& itemPath);

/// Derives the kinds of the page's item from its word forms.
void renewKinds(AtlasPage& page);

/// What the user is to know of the page on a map of `mapLocalities` localities, a sentence each: what cannot
/// be read, and what does not fit.
QStringList warningsOf(const AtlasPage& page, int mapLocalities);

/// Writes what is unsaved of the page to its files. Raises what writing raises.
void saveAtlasPage(const Folders& folders, AtlasPage& page);

/// Notes that a file of the page was read or written just now.
void noteItemFile(const Folders& folders, AtlasPage& page);
void noteSymbolFile(const Folders& folders, AtlasPage& page);

/// Whether the page's symbols are those of the file of the item's name.
bool hasOwnSymbols(const AtlasPage& page);

/// Which files of the page are not as they were read or written last, by name; empty where they are.
QStringList filesChanged(const Folders& folders, const AtlasPage& page);

/// Keeps the page as it is where its files are not as they were read or written last: what they held counts
/// as unsaved.
void keepAgainstFiles(const Folders& folders, AtlasPage& page);
