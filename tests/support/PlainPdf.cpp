#include "tests/support/PlainPdf.h"

#include <qpdf/QPDF.hh>
#include <qpdf/QPDFWriter.hh>

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
