#pragma once

#include "platform/DriveC.h"
#include "platform/RunTimeError.h"
#include "render/MapSize.h"
#include "shell/VarnModule.h"

#include <QTemporaryDir>

#include <concepts>
#include <gtest/gtest.h>
#include <ostream>

/// A drive C: of its own for one test, empty at first and gone afterwards.
class TestDrive
{
public:
    /// Ends the test where the folder cannot be made.
    TestDrive();

    const DriveC& drive() const { return m_drive; }
    /// The folder that plays drive C:, and a path under it.
    QString root() const { return m_folder.path(); }
    QString hostPath(const QString& name) const { return m_folder.filePath(name); }

    /// Writes a file at a path such as "C:\\a\\b.map"; the folders are made. `text` has LF or CR LF line
    /// ends. Fails the test where not all of it is written.
    void write(const QString& path, const QByteArray& text) const;
    QByteArray read(const QString& path) const;

private:
    QTemporaryDir m_folder;
    DriveC m_drive;
};

/// A map "\\Test" with one square line 0..1000, on which 1 map unit is 8.82 twips; three localities; a title
/// and a scale bar; two polygon designs. `varn` has it loaded.
class TestSurvey : public TestDrive
{
public:
    TestSurvey();

    VarnModule varn;
    DrawSurface frmMap;
    MapSurfaces surfaces{{frmMap, frmMap}, firstArea()};
};

/// Runs `action` and returns the run-time's error that it ends with; fails the test where there is none.
RunTimeError errorOf(const std::invocable auto& action)
{
    try {
        action();
    } catch (const RunTimeError& error) {
        return error;
    }
    ADD_FAILURE() << "no error was raised";
    return RunTimeError(ErrorNumber::InvalidProcedureCall);
}

/// Whether this machine has a font; without one nothing can be said of the width of a text.
bool anyFont();

std::ostream& operator<<(std::ostream& out, ErrorNumber number);
void PrintTo(const QString& text, std::ostream* out);

/// The operations of one kind that `drawing` holds, in drawing order.
template <typename Operation>
std::vector<Operation> operationsOf(const Drawing& drawing)
{
    std::vector<Operation> found;
    for (const DrawingOperation& operation : drawing.operations) {
        if (const auto* match = std::get_if<Operation>(&operation)) {
            found.push_back(*match);
        }
    }
    return found;
}

/// Where `text` was printed; fails the test where it was not.
QPointF printedAt(const Drawing& drawing, const QString& text);
bool wasPrinted(const Drawing& drawing, const QString& text);
