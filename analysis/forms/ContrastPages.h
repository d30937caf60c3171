#pragma once

#include "shell/VarnModule.h"

class ListText;

/// Draws the result of a contrast analysis in pages: for each locality its number, the sums of both sides and
/// their difference. A page has three columns of forty localities.
class ContrastPages
{
public:
    /// The pages of the contrast that `varn` holds, headed by the name of its file.
    ContrastPages(VarnModule& varn, QString fileName) : m_varn(varn), m_fileName(std::move(fileName)) {}

    /// Number of pages; there is one also where the map has no localities.
    int count() const;
    /// Width and height of a page in twips.
    static QSizeF area();

    /// Draws page 1..count() on `target`, its top left corner at (0, 0).
    void draw(int page, DrawSurface& target) const;

private:
    void drawHeading(int page, ListText& text, DrawSurface& target) const;
    void drawGroup(int side, float y, ListText& text) const;
    void drawLocality(int j, float left, float y, ListText& text) const;

    VarnModule& m_varn;
    QString m_fileName;
};
