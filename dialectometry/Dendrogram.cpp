#include "dialectometry/Dendrogram.h"

#include "dialectometry/GroupColors.h"
#include "dialectometry/KeptStyle.h"
#include "dialectometry/PlotAxis.h"
#include "platform/StandardColors.h"

#include <algorithm>

namespace {

constexpr float Gap = 80;
/// The smallest text that can be read, in points.
constexpr int LeastFont = 4;

/// A cluster of the tree as it is drawn: one of its localities, or a joining.
struct Node
{
    double height = 0;
    float y = 0;
    /// The group that all its localities belong to; 0 where they are of several.
    int group = 0;
};

/// The leaves of the tree, from 0, in the order in which they are drawn: those of the first part of a joining
/// above those of the second.
std::vector<std::size_t> drawnLeaves(const Linkage& tree)
{
    const std::size_t count = tree.localities.size();
    std::vector<std::size_t> leaves;
    std::vector<std::size_t> open = {count + tree.merges.size() - 1};
    while (!open.empty()) {
        const std::size_t node = open.back();
        open.pop_back();
        if (node < count) {
            leaves.push_back(node);
            continue;
        }
        const Merge& merge = tree.merges[node - count];
        open.push_back(static_cast<std::size_t>(merge.second));
        open.push_back(static_cast<std::size_t>(merge.first));
    }
    return leaves;
}

/// Draws one tree.
class DendrogramPlot
{
public:
    DendrogramPlot(const DendrogramParts& parts, const QRectF& area, AreaLook look, DrawSurface& target)
        : m_parts(parts), m_tree(parts.tree), m_area(area), m_look(look), m_target(target),
          m_leaves(drawnLeaves(parts.tree))
    {
        m_rowHeight = static_cast<float>(bottom() - top()) /
                      static_cast<float>(std::max<std::size_t>(m_leaves.size(), 1));
        placeAxis();
        placeNodes();
    }

    void draw()
    {
        drawTree();
        if (m_names) {
            drawNames();
        } else {
            drawBrackets();
        }
        m_target.setFont(textFont(m_parts.font));
        drawAxisBelow(m_axis, static_cast<float>(bottom()) + Gap, m_target);
    }

private:
    static constexpr float BracketWidth = 1500;

    double top() const { return m_area.top() + 1.5 * lineHeight(); }
    double bottom() const { return m_area.bottom() - 1.5 * lineHeight() - 2 * Gap; }
    double lineHeight() const { return m_target.TextHeight(); }

    QString nameOf(std::size_t leaf) const { return m_parts.names.value(m_tree.localities[leaf]); }
    int groupOf(std::size_t leaf) const
    {
        const auto locality = static_cast<std::size_t>(m_tree.localities[leaf]);
        return locality < m_parts.groups.size() ? m_parts.groups[locality] : 0;
    }

    /// The largest font of the map in which a name is no higher than its row; names are left out where that
    /// is too small.
    void chooseFont()
    {
        const int wanted = m_parts.font.MapFontSize;
        for (int size = wanted; size >= std::min(LeastFont, wanted); --size) {
            m_target.FontSize = size;
            if (m_target.TextHeight() <= m_rowHeight) {
                m_names = true;
                return;
            }
        }
        m_target.FontSize = wanted;
    }

    void placeAxis()
    {
        chooseFont();
        float left = m_parts.groups.empty() ? 0 : BracketWidth;
        if (m_names) {
            left = 0;
            for (const std::size_t leaf : m_leaves) {
                left = std::max(left, m_target.TextWidth(nameOf(leaf)));
            }
            left += m_rowHeight;
        }
        m_axis.start = static_cast<float>(m_area.left()) + left + Gap;
        m_axis.end = static_cast<float>(m_area.right()) - 4 * Gap;
        m_axis.most = 0;
        for (const Merge& merge : m_tree.merges) {
            m_axis.most = std::max(m_axis.most, merge.height);
        }
    }

    float rowY(std::size_t row) const
    {
        return static_cast<float>(top()) + m_rowHeight * (static_cast<float>(row) + 0.5F);
    }

    void placeNodes()
    {
        m_nodes.resize(m_tree.localities.size());
        for (std::size_t row = 0; row < m_leaves.size(); ++row) {
            m_nodes[m_leaves[row]] = {0, rowY(row), groupOf(m_leaves[row])};
        }
        for (const Merge& merge : m_tree.merges) {
            const Node& first = m_nodes[static_cast<std::size_t>(merge.first)];
            const Node& second = m_nodes[static_cast<std::size_t>(merge.second)];
            const int group = first.group == second.group ? first.group : 0;
            m_nodes.push_back({merge.height, (first.y + second.y) / 2, group});
        }
    }

    QRgb colorOf(int group) const
    {
        return group > 0 && m_look == AreaLook::Colored ? groupColor(group) : QBColor(StandardColor::Black);
    }

    void drawTree()
    {
        const KeptStyle kept(m_target);
        m_target.DrawWidth = m_rowHeight >= 60 ? 2 : 1;
        for (const Merge& merge : m_tree.merges) {
            const Node& first = m_nodes[static_cast<std::size_t>(merge.first)];
            const Node& second = m_nodes[static_cast<std::size_t>(merge.second)];
            const float x = m_axis.at(merge.height);
            const int group = first.group == second.group ? first.group : 0;
            m_target.Line(m_axis.at(first.height), first.y, x, first.y, colorOf(first.group));
            m_target.Line(m_axis.at(second.height), second.y, x, second.y, colorOf(second.group));
            m_target.Line(x, first.y, x, second.y, colorOf(group));
        }
    }

    void drawNames()
    {
        for (const std::size_t leaf : m_leaves) {
            const Node& node = m_nodes[leaf];
            const float symbol = m_rowHeight / 3;
            if (node.group > 0) {
                drawGroupSymbol(node.group, m_look, m_axis.start - Gap - symbol, node.y, symbol, m_target);
            }
            const QString name = nameOf(leaf);
            m_target.PrintAt(m_axis.start - Gap - 3 * symbol - m_target.TextWidth(name),
                             node.y - m_target.TextHeight() / 2, name);
        }
    }

    /// A bracket for each run of rows of one group.
    void drawBrackets()
    {
        auto lastText = static_cast<float>(m_area.top());
        for (std::size_t row = 0; row < m_leaves.size();) {
            const int group = groupOf(m_leaves[row]);
            std::size_t end = row;
            while (end < m_leaves.size() && groupOf(m_leaves[end]) == group) {
                ++end;
            }
            if (group > 0) {
                drawBracket(group, rowY(row) - m_rowHeight / 2, rowY(end - 1) + m_rowHeight / 2,
                            static_cast<int>(end - row), lastText);
            }
            row = end;
        }
    }

    /// `lastText` is where the text of the bracket above ends: texts do not overlap.
    void drawBracket(int group, float from, float to, int localities, float& lastText)
    {
        constexpr float Size = 80;
        constexpr float MostApart = 30; // brackets of one colour are told apart

        const KeptStyle kept(m_target);
        const float x = m_axis.start - Gap;
        m_target.DrawWidth = 3;
        const float apart = std::min(MostApart, (to - from) / 4);
        m_target.Line(x, from + apart, x, to - apart, colorOf(group));
        const float middle = (from + to) / 2;
        if (middle - m_target.TextHeight() / 2 < lastText) {
            return;
        }
        lastText = middle + m_target.TextHeight() / 2;
        drawGroupSymbol(group, m_look, x - 2 * Size, middle, Size, m_target);
        const QString text = QStringLiteral("%1 (%2)").arg(group).arg(localities);
        m_target.PrintAt(x - 4 * Size - m_target.TextWidth(text), middle - m_target.TextHeight() / 2, text);
    }

    const DendrogramParts& m_parts;
    const Linkage& m_tree;
    QRectF m_area;
    AreaLook m_look;
    DrawSurface& m_target;
    std::vector<std::size_t> m_leaves;
    float m_rowHeight = 0;
    bool m_names = false;
    PlotAxis m_axis;
    std::vector<Node> m_nodes;
};

} // namespace

void drawDendrogram(const DendrogramParts& parts, const QString& title, const QRectF& area, AreaLook look,
                    DrawSurface& target)
{
    target.setFont(textFont(parts.font));
    target.PrintAt(static_cast<float>(area.left()), static_cast<float>(area.top()), title);
    if (!parts.tree.localities.empty()) {
        DendrogramPlot(parts, area, look, target).draw();
    }
}
