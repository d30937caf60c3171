#include "plot/PdfShapes.h"

#include <algorithm>
#include <charconv>
#include <cmath>

namespace {

/// An operation of a page: numbers, and behind them its name.
struct Operation
{
    std::array<double, 6> numbers;
    std::size_t count = 0;
    std::string_view name;
};

/// Nameless for a line that is something else.
Operation operationOf(std::string_view line)
{
    Operation operation;
    for (std::size_t space = line.find(' '); space != std::string_view::npos; space = line.find(' ')) {
        const char* const end = line.data() + space;
        if (operation.count == operation.numbers.size() ||
            std::from_chars(line.data(), end, operation.numbers.at(operation.count)).ptr != end) {
            return {};
        }
        ++operation.count;
        line.remove_prefix(space + 1);
    }
    operation.name = line;
    return operation;
}

bool isPainting(const Operation& operation)
{
    constexpr std::array<std::string_view, 9> Names = {"S", "s", "f", "F", "f*", "B", "B*", "b", "b*"};
    return std::find(Names.begin(), Names.end(), operation.name) != Names.end() && operation.count == 0;
}

/// Whether it adds points to a path.
bool isOfPath(const Operation& operation)
{
    struct Row
    {
        std::string_view name;
        std::size_t numbers;
    };
    constexpr std::array<Row, 4> Rows = {{{"c", 6}, {"l", 2}, {"m", 2}, {"h", 0}}};
    return std::any_of(Rows.begin(), Rows.end(), [&operation](const Row& row) {
        return row.name == operation.name && row.numbers == operation.count;
    });
}

/// Writes a number with so many decimals, without those that are 0.
void appendNumber(std::string& text, double number, int decimals)
{
    std::array<char, 32> digits;
    text.append(digits.data(), std::to_chars(digits.data(), digits.data() + digits.size(), number,
                                             std::chars_format::fixed, decimals)
                                   .ptr);
    text.erase(text.find_last_not_of('0') + 1);
    if (text.back() == '.') {
        text.pop_back();
    }
    text += ' ';
}

/// A path while it is read.
class PathReader
{
public:
    /// Where it begins.
    double x() const { return m_x; }
    double y() const { return m_y; }
    /// Its points, about its first one.
    const PdfBox& box() const { return m_box; }
    const std::string& content() const { return m_content; }

    /// Whether there is a path, which `operation` paints.
    bool isPaintedBy(const Operation& operation) const { return m_isOpen && isPainting(operation); }

    /// Takes the next operation of a page; returns whether a path begins with it. The painting ends a path,
    /// and so does what is no part of one.
    bool read(const Operation& operation)
    {
        constexpr std::size_t Longest = 4000; // symbols are shorter, areas and lines of the map may be longer

        const bool begins = !m_isOpen && operation.name == "m" && isOfPath(operation);
        if (begins) {
            m_x = operation.numbers[0];
            m_y = operation.numbers[1];
            m_box = {};
            m_content.clear();
        }
        const bool goesOn = begins || m_isOpen;
        m_isOpen = goesOn && isOfPath(operation) && m_content.size() < Longest;
        if (m_isOpen || (goesOn && isPainting(operation))) {
            write(operation);
        }
        return begins;
    }

private:
    void write(const Operation& operation)
    {
        for (std::size_t i = 0; i < operation.count; ++i) {
            const std::size_t axis = i % 2;
            const double about = operation.numbers.at(i) - (axis == 0 ? m_x : m_y);
            const double rounded = std::round(10 * about) / 10 + 0.0; // 0, not -0
            m_box.at(axis) = std::min(m_box.at(axis), rounded);
            m_box.at(axis + 2) = std::max(m_box.at(axis + 2), rounded);
            appendNumber(m_content, rounded, 1);
        }
        (m_content += operation.name) += '\n';
    }

    bool m_isOpen = false;
    double m_x = 0;
    double m_y = 0;
    PdfBox m_box{};
    std::string m_content;
};

std::string nameOf(std::size_t shape)
{
    return "/S" + std::to_string(shape + 1);
}

} // namespace

void PdfShapes::add(std::string_view content)
{
    Page page;
    PathReader path;
    std::size_t done = 0;
    std::size_t begin = 0;
    for (std::size_t at = 0, next = 0; at < content.size(); at = next) {
        next = std::min(content.find('\n', at), content.size() - 1) + 1;
        const Operation operation = operationOf(content.substr(at, next - at - 1));
        const bool isPainted = path.isPaintedBy(operation);
        begin = path.read(operation) ? at : begin;
        if (isPainted) {
            page.pieces.push_back({content.substr(done, begin - done), content.substr(begin, next - begin),
                                   numberOf(path.content(), path.box()), path.x(), path.y()});
            done = next;
        }
    }
    page.rest = content.substr(done);
    m_pages.push_back(std::move(page));
}

std::size_t PdfShapes::numberOf(const std::string& content, const PdfBox& box)
{
    const auto [known, isNew] = m_numbers.try_emplace(content, m_shapes.size());
    if (isNew) {
        m_shapes.push_back({content, box, 0});
    }
    ++m_shapes[known->second].uses;
    return known->second;
}

bool PdfShapes::isObject(const Shape& shape)
{
    constexpr std::size_t Placing = 40; // bytes, as those of an object without its content
    constexpr std::size_t Frame = 150;

    const std::size_t size = shape.content.size();
    return shape.uses * size > shape.uses * Placing + size + Frame;
}

std::optional<std::string> PdfShapes::page(std::size_t number) const
{
    std::string content;
    bool isChanged = false;
    for (const Piece& piece : m_pages[number].pieces) {
        content += piece.before;
        if (!isObject(m_shapes[piece.shape])) {
            content += piece.path;
            continue;
        }
        isChanged = true;
        content += "q 1 0 0 1 ";
        appendNumber(content, piece.x, 2);
        appendNumber(content, piece.y, 2);
        content += "cm " + nameOf(piece.shape) + " Do Q\n";
    }
    content += m_pages[number].rest;
    return isChanged ? std::optional(std::move(content)) : std::nullopt;
}

std::vector<PdfShapes::Object> PdfShapes::objects() const
{
    std::vector<Object> objects;
    for (std::size_t i = 0; i < m_shapes.size(); ++i) {
        if (isObject(m_shapes[i])) {
            objects.push_back({nameOf(i), m_shapes[i].content, m_shapes[i].box});
        }
    }
    return objects;
}
