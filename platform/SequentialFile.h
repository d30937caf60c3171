#pragma once

#include "platform/DriveC.h"
#include "platform/RunTimeError.h"
#include "platform/WholeFile.h"

#include <QByteArray>
#include <QString>
#include <QStringView>
#include <QVariant>

#include <concepts>
#include <utility>

/// Reads a comma-separated text field by field, however its fields are spread over lines. Strings stand in
/// double quotes (a quote inside is doubled, a line break inside is part of the string) or bare up to the
/// next comma or line end; numbers end at a comma, a blank or a line end.
class SequentialReader
{
public:
    explicit SequentialReader(QString text);

    // Each raises input past end of file where no field is left.

    /// The next field as text.
    QString readString();
    /// The next field as a number. Raises type mismatch where it is none.
    double readNumber();
    /// The next field as a 16-bit integer. Raises type mismatch, overflow.
    qint16 readInteger();
    /// The next field as a single. Raises type mismatch, overflow.
    float readSingle();
    /// The next field as a Boolean: `#TRUE#`, `#FALSE#`, or a number that is 0 or not. Raises type mismatch.
    bool readBoolean();
    /// The next field as what it is written as: a string in quotes, a Boolean, a number, or else a bare text.
    QVariant readValue();
    /// The next field as a count of records: a 16-bit integer that is not negative. Raises type mismatch,
    /// overflow, and subscript out of range for a negative count.
    qint16 readCount();

    /// Whether anything but blanks and line ends is left.
    bool hasMore() const;

    /// The line and the field on it, counted from 1, of the field read last.
    int line() const { return m_fieldLine; }
    int field() const { return m_field; }

private:
    struct Field
    {
        QStringView text;
        bool quoted = false;
        bool hasDoubledQuotes = false;
    };

    bool atEnd() const { return m_position >= m_text.size(); }
    bool atLineEnd() const;
    void skipBlanks();
    void skipLineEnd();
    void skipToNumber();
    void beginField();
    void endField();
    Field nextQuoted();
    QStringView nextNumber();

    QString m_text;
    qsizetype m_position = 0;
    int m_line = 1;
    int m_fieldsOnLine = 0;
    int m_fieldLine = 0;
    int m_field = 0;
};

/// Builds the text of a comma-separated file, one statement a line.
class SequentialWriter
{
public:
    /// Writes one line: strings in double quotes, Booleans as `#TRUE#` or `#FALSE#`, numbers in the shortest
    /// decimal form that reads back to the same number.
    template <typename... Fields>
    void write(const Fields&... fields)
    {
        (writeField(fields), ...);
        endStatement();
    }

    /// Writes one field of a line whose number of fields is not known beforehand.
    template <typename Field>
    void writeField(const Field& field)
    {
        if (!m_bytes.isEmpty() && !m_bytes.endsWith('\n')) {
            m_bytes.append(',');
        }
        append(field);
    }

    /// Ends the line.
    void endStatement() { m_bytes.append("\r\n"); }

    const QByteArray& bytes() const { return m_bytes; }

private:
    void append(const QString& field);
    void append(bool field);
    void append(float field);
    void append(double field);
    void append(const QVariant& field);
    template <std::integral Integer>
    void append(Integer field)
    {
        m_bytes.append(QByteArray::number(field));
    }

    QByteArray m_bytes;
};

/// Reads the file at `path` with `read`, a function of a `SequentialReader&`, and returns what it returns. An
/// error raised while reading leaves with the path and with the line and field where the reader stood.
template <typename Read>
auto readSequentialFile(const DriveC& drive, const QString& path, Read read)
{
    SequentialReader reader(readTextFile(drive, path));
    try {
        return read(reader);
    } catch (const RunTimeError& error) {
        throw error.hasPlace() ? error : error.at({path, reader.line(), reader.field()});
    }
}

/// Writes what `write`, a function of a `SequentialWriter&`, writes to the file at `path`, in one step.
template <typename Write>
void writeSequentialFile(const DriveC& drive, const QString& path, Write write)
{
    SequentialWriter writer;
    write(writer);
    replaceFile(drive, path, writer.bytes());
}
