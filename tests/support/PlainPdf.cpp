#include "tests/support/PlainPdf.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

#include <algorithm>
#include <cmath>
#include <set>

namespace {

/// Writes down what a page paints, as its reader paints it.
class ShapeReader : public QPDFObjectHandle::ParserCallbacks
{
public:
    explicit ShapeReader(QPDFObjectHandle forms) : m_forms(forms) {}

    void handleObject(QPDFObjectHandle object, size_t /*offset*/, size_t /*length*/) override
    {
        if (!object.isOperator()) {
            m_operands.append(QByteArray::fromStdString(object.unparse()) + ' ');
            return;
        }
        const QByteArray name = QByteArray::fromStdString(object.getOperatorValue());
        const QByteArray operands = std::exchange(m_operands, {});
        follow(name, operands);
    }
    void handleEOF() override {}

    QList<PaintedShape> takeShapes() { return std::move(m_shapes); }

private:
    struct State
    {
        QByteArray scale;
        /// Where (0, 0) is.
        double origin[2] = {0, 0};
        QByteArray fill;
        QByteArray line;
    };

    void follow(const QByteArray& name, const QByteArray& operands)
    {
        static const std::set<QByteArray> paints = {"f", "f*", "B", "B*", "S", "Tj"};
        if (name == "q") {
            m_saved << m_state;
        } else if (name == "Q") {
            m_state = m_saved.takeLast();
        } else if (name == "cm") {
            transform(operands);
        } else if (name == "scn") {
            m_state.fill = operands;
        } else if (name == "SCN") {
            m_state.line = operands;
        } else if (name == "Do" && m_forms.hasKey(operands.trimmed().toStdString())) {
            show(m_forms.getKey(operands.trimmed().toStdString()));
        } else if (paints.count(name) > 0) {
            const QByteArray color = name == "S" ? m_state.line : m_state.fill;
            m_shapes << PaintedShape{name + ' ' + color + m_state.scale, std::exchange(m_path, {})};
        } else if (std::set<QByteArray>{"m", "l", "c", "re"}.count(name) > 0) {
            addPoints(operands, name == "re" ? 2 : 6);
        }
    }

    void transform(const QByteArray& operands)
    {
        if (!operands.startsWith("1 0 0 1 ")) {
            m_state.scale += operands;
            return;
        }
        const QList<QByteArray> numbers = operands.split(' ');
        m_state.origin[0] += numbers[4].toDouble();
        m_state.origin[1] += numbers[5].toDouble();
    }

    /// Behind the places there are sizes.
    void addPoints(const QByteArray& operands, int places)
    {
        const QList<QByteArray> numbers = operands.trimmed().split(' ');
        for (int i = 0; i < numbers.size(); ++i) {
            m_path << numbers[i].toDouble() + (i < places ? m_state.origin[i % 2] : 0);
        }
    }

    void show(QPDFObjectHandle form)
    {
        m_saved << m_state;
        if (form.getDict().getKey("/Subtype").getName() == "/Form") {
            form.parseAsContents(this);
        }
        m_state = m_saved.takeLast();
    }

    QPDFObjectHandle m_forms;
    QByteArray m_operands;
    QList<double> m_path;
    State m_state;
    QList<State> m_saved;
    QList<PaintedShape> m_shapes;
};

} // namespace

bool PaintedShape::operator==(const PaintedShape& other) const
{
    const auto areNear = [](double a, double b) { return std::abs(a - b) < 0.1; };
    return painting == other.painting &&
           std::equal(points.begin(), points.end(), other.points.begin(), other.points.end(), areNear);
}

QByteArray plain(const QByteArray& bytes)
{
    QPDF pdf;
    pdf.processMemoryFile("pdf", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    QPDFWriter writer(pdf);
    writer.setOutputMemory();
    writer.setQDFMode(true);
    writer.write();
    const auto buffer = writer.getBufferSharedPointer();
    return {reinterpret_cast<const char*>(buffer->getBuffer()), static_cast<qsizetype>(buffer->getSize())};
}

qsizetype painted(const QByteArray& plainPdf)
{
    return plainPdf.count("\nB\n") + plainPdf.count("\nS\n") + plainPdf.count("\nf\n") +
           plainPdf.count("\nBT\n");
}

QList<PaintedShape> shapesOf(const QByteArray& bytes, int page)
{
    QPDF pdf;
    pdf.processMemoryFile("pdf", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    QPDFPageObjectHelper shown = QPDFPageDocumentHelper(pdf).getAllPages().at(static_cast<std::size_t>(page));
    ShapeReader shapes(shown.getAttribute("/Resources", false).getKey("/XObject"));
    shown.parseContents(&shapes);
    return shapes.takeShapes();
}

qsizetype countOf(const QList<PaintedShape>& shapes, const QByteArray& painting)
{
    return std::count_if(shapes.begin(), shapes.end(), [&painting](const PaintedShape& shape) {
        return shape.painting.startsWith(painting);
    });
}
