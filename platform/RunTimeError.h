#pragma once

#include <QString>

#include <exception>

/// Numbers of the run-time's errors.
enum class ErrorNumber {
    InvalidProcedureCall = 5,
    Overflow = 6,
    OutOfMemory = 7,
    SubscriptOutOfRange = 9,
    DivisionByZero = 11,
    TypeMismatch = 13,
    BadFileName = 52,
    FileNotFound = 53,
    FileAlreadyOpen = 55,
    DeviceIOError = 57,
    DiskFull = 61,
    InputPastEndOfFile = 62,
    PermissionDenied = 70,
    PathNotFound = 76,
};

/// A place in a text file: the path as the program writes it, and the line and the field on it, both counted
/// from 1. Line 0 stands for the file as a whole, field 0 for a whole line.
struct FilePlace
{
    QString path;
    int line = 0;
    int field = 0;
};

/// The one error that an operation ends with: the run-time's number and text, what was wrong, and where a
/// file is at fault, the place in it.
class RunTimeError : public std::exception
{
public:
    explicit RunTimeError(ErrorNumber number, QString detail = {});

    ErrorNumber number() const { return m_number; }
    const QString& detail() const { return m_detail; }
    const FilePlace& place() const { return m_place; }
    bool hasPlace() const { return !m_place.path.isEmpty(); }

    /// The same error, raised while the file was read or written at `place`.
    RunTimeError at(FilePlace place) const;

    /// The same error, which says first that it was raised during `what`: a sentence such as "The sum at
    /// locality 3."
    RunTimeError during(const QString& what) const;

    /// The run-time's text of the error, such as "File not found".
    QString text() const;
    /// "Run-time error '53': File not found".
    QString title() const;
    /// File, line, field and detail, one a line; empty where nothing more is known.
    QString where() const;
    /// The title with what is known under it.
    QString message() const;

    const char* what() const noexcept override { return m_what.constData(); }

private:
    ErrorNumber m_number;
    QString m_detail;
    FilePlace m_place;
    QByteArray m_what;
};
