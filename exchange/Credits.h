#pragma once

#include <QString>

#include <vector>

/// Something by others that the program is made with.
struct Credit
{
    QString name;
    /// The version that runs; empty for data.
    QString version;
    /// Who holds the copyright; empty where nobody does.
    QString holder;
    QString licence;
    QString home;
    /// What the program uses it for.
    QString use;
};

/// Libraries, data and fonts of others, all that the program is made with.
std::vector<Credit> credits();

/// The version of the program.
QString programVersion();

/// What the program is and what it is made with, in Markdown.
QString creditsText();
