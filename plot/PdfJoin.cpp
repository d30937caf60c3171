#include "plot/PdfJoin.h"

#include "platform/Parallel.h"
#include "plot/PdfShapes.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace {

using Pages = std::vector<QPDFPageObjectHelper>;

struct Part
{
    std::unique_ptr<QPDF> pdf = std::make_unique<QPDF>();
    Pages pages;
};

Part openPart(const QByteArray& bytes)
{
    Part part;
    part.pdf->processMemoryFile("part", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    part.pages = QPDFPageDocumentHelper(*part.pdf).getAllPages();
    return part;
}

std::string bytesOf(QPDFObjectHandle stream)
{
    const auto data = stream.getStreamData();
    return {reinterpret_cast<const char*>(data->getBuffer()), data->getSize()};
}

std::string compressed(const std::string& text)
{
    constexpr int SizeOfSize = 4; // what the toolkit writes before the data

    return qCompress(QByteArray::fromRawData(text.data(), static_cast<qsizetype>(text.size())))
        .mid(SizeOfSize)
        .toStdString();
}

/// The letters of a font: those that were written of it, in the order of their numbers.
std::string lettersOf(QPDFObjectHandle font)
{
    std::string letters = font.getKey("/ToUnicode").isStream() ? bytesOf(font.getKey("/ToUnicode")) : "";
    for (QPDFObjectHandle part : font.getKey("/DescendantFonts").getArrayAsVector()) {
        letters += part.getKey("/W").unparseResolved();
        letters += bytesOf(part.getKey("/FontDescriptor").getKey("/FontFile2"));
    }
    return letters;
}

/// The fonts of a part, which its first page shows all of.
QPDFObjectHandle fontsOf(Part& part)
{
    return part.pages.front().getAttribute("/Resources", false).getKey("/Font");
}

/// The names of the fonts with their letters.
std::map<std::string, std::string> describedFonts(Part& part)
{
    std::map<std::string, std::string> described;
    QPDFObjectHandle fonts = fontsOf(part);
    for (const std::string& name : fonts.isDictionary() ? fonts.getKeys() : std::set<std::string>()) {
        described[name] = lettersOf(fonts.getKey(name));
    }
    return described;
}

bool haveSameFonts(std::vector<Part>& parts)
{
    const auto fonts = describedFonts(parts.front());
    return std::all_of(parts.begin(), parts.end(), [&](Part& part) { return describedFonts(part) == fonts; });
}

QPDFObjectHandle textObject(const QString& text)
{
    return QPDFObjectHandle::newUnicodeString(text.toStdString());
}

/// Puts the pages of all parts together in the first one.
class Joiner
{
public:
    explicit Joiner(std::vector<Part>& parts) : m_parts(parts), m_pdf(*parts.front().pdf), m_helper(m_pdf)
    {
        Pages& pages = parts.front().pages;
        m_mediaBox = pages[0].getAttribute("/MediaBox", false);
        QPDFObjectHandle common = pages[0].getAttribute("/Resources", false);
        QPDFObjectHandle base = pages[1].getFormXObjectForPage();
        base.getDict().replaceKey("/Resources", common);
        m_resources = common.shallowCopy();
        QPDFObjectHandle objects = m_resources.getKey("/XObject");
        objects = objects.isDictionary() ? objects.shallowCopy() : QPDFObjectHandle::newDictionary();
        objects.replaceKey("/Base", base);
        m_resources.replaceKey("/XObject", objects);
        m_resources = m_pdf.makeIndirectObject(m_resources);
        m_base = m_pdf.newStream("q /Base Do Q\n");
        m_save = m_pdf.newStream("q\n");
        m_restore = m_pdf.newStream("Q\n");
        nameFonts(fontsOf(parts.front()));
    }

    void join(PdfLayers layers, int jobs)
    {
        const std::vector<QPDFObjectHandle> contents = takeContents(jobs);
        const auto layersOfPage = static_cast<std::size_t>(layers);
        for (std::size_t over = layersOfPage - 1; over < contents.size(); over += layersOfPage) {
            add(layers == PdfLayers::Over
                    ? std::vector{m_base, contents[over]}
                    : std::vector{m_save, contents[over - 1], m_restore, m_base, contents[over]});
        }
        for (QPDFPageObjectHelper& page : m_parts.front().pages) {
            m_helper.removePage(page);
        }
    }

    void addOutline(const PdfOutline& outline)
    {
        QPDFObjectHandle root = m_pdf.getRoot();
        root.removeKey("/Metadata"); // it tells when the first part was made
        root.replaceKey("/Outlines", bookmarks(outline.captions));
        root.replaceKey("/PageMode", QPDFObjectHandle::newName("/UseOutlines"));
        root.replaceKey("/PageLabels", QPDFObjectHandle::parse("<< /Nums [ 0 << /S /D >> ] >>"));
        QPDFObjectHandle info = QPDFObjectHandle::newDictionary();
        info.replaceKey("/Title", textObject(outline.title));
        info.replaceKey("/Creator", textObject(QStringLiteral("varn")));
        m_pdf.getTrailer().replaceKey("/Info", m_pdf.makeIndirectObject(info));
    }

    QByteArray bytes()
    {
        QPDFWriter writer(m_pdf);
        writer.setOutputMemory();
        writer.setObjectStreamMode(qpdf_o_generate);
        writer.setDeterministicID(true);
        writer.write();
        const auto buffer = writer.getBufferSharedPointer();
        return {reinterpret_cast<const char*>(buffer->getBuffer()),
                static_cast<qsizetype>(buffer->getSize())};
    }

private:
    /// Tags the fonts by their order; the toolkit tags them by what else is in the part.
    static void nameFonts(QPDFObjectHandle fonts)
    {
        char tag = 'A';
        for (const std::string& key : fonts.isDictionary() ? fonts.getKeys() : std::set<std::string>()) {
            for (QPDFObjectHandle part : fonts.getKey(key).getKey("/DescendantFonts").getArrayAsVector()) {
                QPDFObjectHandle descriptor = part.getKey("/FontDescriptor");
                const std::string old = descriptor.getKey("/FontName").getName().substr(1);
                const std::string untagged = old.substr(old.find('+') + 1);
                descriptor.replaceKey("/FontName",
                                      QPDFObjectHandle::newName("/AAAAA" + (tag++ + ("+" + untagged))));
            }
        }
    }

    /// What is painted on the pages of all parts behind the base, with the shapes that they share as objects.
    std::vector<QPDFObjectHandle> takeContents(int jobs)
    {
        std::vector<QPDFObjectHandle> contents = contentsOfPages();
        std::vector<std::string> texts;
        PdfShapes shapes;
        texts.reserve(contents.size()); // they stay where they are
        for (const QPDFObjectHandle& content : contents) {
            shapes.add(texts.emplace_back(bytesOf(content)));
        }
        for (const PdfShapes::Object& object : shapes.objects()) {
            m_resources.getKey("/XObject").replaceKey(object.name, formOf(object));
        }
        placeShapes(shapes, contents, jobs);
        return contents;
    }

    static void placeShapes(const PdfShapes& shapes, std::vector<QPDFObjectHandle>& contents, int jobs)
    {
        std::vector<std::string> changed(contents.size());
        const auto change = [&](int page) {
            const auto number = static_cast<std::size_t>(page);
            if (const auto text = shapes.page(number)) {
                changed[number] = compressed(*text);
            }
        };
        inParallel(static_cast<int>(contents.size()), change, jobs);
        for (std::size_t page = 0; page < contents.size(); ++page) {
            if (!changed[page].empty()) {
                contents[page].replaceStreamData(changed[page], QPDFObjectHandle::newName("/FlateDecode"),
                                                 QPDFObjectHandle::newNull());
            }
        }
    }

    std::vector<QPDFObjectHandle> contentsOfPages()
    {
        std::vector<QPDFObjectHandle> contents;
        for (Part& part : m_parts) {
            const bool isFirst = &part == &m_parts.front();
            for (std::size_t page = isFirst ? 2 : 1; page < part.pages.size(); ++page) {
                const QPDFObjectHandle content = part.pages[page].getObjectHandle().getKey("/Contents");
                contents.push_back(isFirst ? content : m_pdf.copyForeignObject(content));
            }
        }
        return contents;
    }

    QPDFObjectHandle formOf(const PdfShapes::Object& object)
    {
        constexpr double WidestPen = 1000; // lines reach beyond the box of their points

        QPDFObjectHandle form = m_pdf.newStream(object.content);
        form.getDict().replaceKey("/Type", QPDFObjectHandle::newName("/XObject"));
        form.getDict().replaceKey("/Subtype", QPDFObjectHandle::newName("/Form"));
        form.getDict().replaceKey("/BBox", QPDFObjectHandle::newFromRectangle(
                                               {object.box[0] - WidestPen, object.box[1] - WidestPen,
                                                object.box[2] + WidestPen, object.box[3] + WidestPen}));
        return form;
    }

    void add(const std::vector<QPDFObjectHandle>& contents)
    {
        QPDFObjectHandle page = QPDFObjectHandle::newDictionary();
        page.replaceKey("/Type", QPDFObjectHandle::newName("/Page"));
        page.replaceKey("/MediaBox", m_mediaBox);
        page.replaceKey("/Contents", QPDFObjectHandle::newArray(contents));
        page.replaceKey("/Resources", m_resources);
        m_joined.push_back(m_pdf.makeIndirectObject(page));
        m_helper.addPage(QPDFPageObjectHelper(m_joined.back()), false);
    }

    QPDFObjectHandle bookmarks(const QStringList& captions)
    {
        QPDFObjectHandle all = m_pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
        QPDFObjectHandle last;
        for (std::size_t page = 0; page < m_joined.size(); ++page) {
            QPDFObjectHandle bookmark = m_pdf.makeIndirectObject(QPDFObjectHandle::newDictionary());
            bookmark.replaceKey("/Title", textObject(captions[static_cast<qsizetype>(page)]));
            bookmark.replaceKey("/Parent", all);
            bookmark.replaceKey(
                "/Dest", QPDFObjectHandle::newArray({m_joined[page], QPDFObjectHandle::newName("/Fit")}));
            if (page == 0) {
                all.replaceKey("/First", bookmark);
            } else {
                bookmark.replaceKey("/Prev", last);
                last.replaceKey("/Next", bookmark);
            }
            last = bookmark;
        }
        all.replaceKey("/Last", last);
        all.replaceKey("/Count", QPDFObjectHandle::newInteger(static_cast<long long>(m_joined.size())));
        return all;
    }

    std::vector<Part>& m_parts;
    QPDF& m_pdf;
    QPDFPageDocumentHelper m_helper;
    QPDFObjectHandle m_mediaBox;
    QPDFObjectHandle m_resources;
    QPDFObjectHandle m_base;
    /// Around what lies under the base, for its scale to end with it.
    QPDFObjectHandle m_save;
    QPDFObjectHandle m_restore;
    std::vector<QPDFObjectHandle> m_joined;
};

} // namespace

std::optional<QByteArray> joinedPdf(const std::vector<QByteArray>& parts, PdfLayers layers,
                                    const PdfOutline& outline, int jobs)
{
    std::vector<Part> opened;
    opened.reserve(parts.size());
    for (const QByteArray& part : parts) {
        opened.push_back(openPart(part));
    }
    if (!haveSameFonts(opened)) {
        return std::nullopt;
    }
    Joiner joiner(opened);
    joiner.join(layers, jobs);
    joiner.addOutline(outline);
    return joiner.bytes();
}
