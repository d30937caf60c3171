#pragma once

#include <array>
#include <cstddef>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

/// Left, bottom, right and top.
using PdfBox = std::array<double, 4>;

/// Finds the shapes that the pages of a PDF draw again and again, symbols above all, so that each is written
/// once and only placed afterwards. A shape is a path and its painting; it is known by its points about the
/// first one, to a tenth of the pages' unit, which no device resolves.
class PdfShapes
{
public:
    /// Adds the content of a page, an operation a line as the toolkit writes it; it must outlive this.
    void add(std::string_view content);

    /// The content of a page (from 0 in the order they were added), where shapes are placed as the objects of
    /// their names; those that are not worth an object are left as they are. Nothing where all are.
    std::optional<std::string> page(std::size_t number) const;

    /// What pages place.
    struct Object
    {
        std::string name;
        /// The path about its first point, and its painting.
        std::string content;
        PdfBox box;
    };
    std::vector<Object> objects() const;

private:
    struct Shape
    {
        std::string content;
        PdfBox box;
        std::size_t uses = 0;
    };
    /// A part of a page: what stands before a shape, and the shape at a place.
    struct Piece
    {
        std::string_view before;
        /// The shape as it stands there.
        std::string_view path;
        std::size_t shape;
        double x;
        double y;
    };
    struct Page
    {
        std::vector<Piece> pieces;
        std::string_view rest;
    };

    std::size_t numberOf(const std::string& content, const PdfBox& box);
    /// Whether it is used so often that an object saves space.
    static bool isObject(const Shape& shape);

    std::vector<Page> m_pages;
    /// In the order in which they were found.
    std::vector<Shape> m_shapes;
    std::map<std::string, std::size_t> m_numbers;
};
