#pragma once

#include <QString>
#include <QStringList>

#include <vector>

/// What became of a source: what came in, and what was left out and why. Nothing is dropped in silence.
class ImportReport
{
public:
    /// A line that tells what came in or was decided, such as "98 localities".
    void tell(const QString& line);
    /// One thing is to be known. The same remark is told once, with the number of things and the first of
    /// them by name: "Items of more than 200 kinds: 2 (rain, snow)".
    void note(const QString& remark, const QString& what);
    /// One thing was left out. The same reason is told once, with the number of things and the first of them
    /// by name: "Left out, localities without coordinates: 3 (A, B, C)".
    void leaveOut(const QString& reason, const QString& what);

    /// The report as it is shown, printed and kept, one statement a line.
    QString text() const;
    /// Whether anything was left out.
    bool isComplete() const { return m_leftOut.empty(); }

private:
    /// Things of which the same is said.
    struct Things
    {
        QString remark;
        int count = 0;
        QStringList first;
    };

    static void add(std::vector<Things>& all, const QString& remark, const QString& what);
    static QString line(const Things& things);

    QStringList m_told;
    std::vector<Things> m_noted;
    std::vector<Things> m_leftOut;
};
