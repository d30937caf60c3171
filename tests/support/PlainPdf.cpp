#include "tests/support/PlainPdf.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFPageDocumentHelper.hh>
#include <qpdf/QPDFPageObjectHelper.hh>
#include <qpdf/QPDFWriter.hh>

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

    QStringList takeShapes() { return std::move(m_shapes); }

private:
    struct State
    {
        QByteArray scale;
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
            m_state.scale += operands == "1 0 0 1 0 0 " ? QByteArray() : operands;
        } else if (name == "scn") {
            m_state.fill = operands;
        } else if (name == "SCN") {
            m_state.line = operands;
        } else if (name == "Do" && m_forms.hasKey(operands.trimmed().toStdString())) {
            show(m_forms.getKey(operands.trimmed().toStdString()));
        } else if (paints.count(name) > 0) {
            const QByteArray color = name == "S" ? m_state.line : m_state.fill;
            m_shapes << QString::fromLatin1(name + ' ' + color + m_state.scale + std::exchange(m_path, {}));
        } else if (std::set<QByteArray>{"m", "l", "c", "re"}.count(name) > 0) {
            m_path += operands;
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
    QByteArray m_path;
    State m_state;
    QList<State> m_saved;
    QStringList m_shapes;
};

} // namespace

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

QStringList shapesOf(const QByteArray& bytes, int page)
{
    QPDF pdf;
    pdf.processMemoryFile("pdf", bytes.constData(), static_cast<std::size_t>(bytes.size()));
    QPDFPageObjectHelper shown = QPDFPageDocumentHelper(pdf).getAllPages().at(static_cast<std::size_t>(page));
    ShapeReader shapes(shown.getAttribute("/Resources", false).getKey("/XObject"));
    shown.parseContents(&shapes);
    return shapes.takeShapes();
}
