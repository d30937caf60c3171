#pragma once

#include <QStringList>

/// What parts several answers in the cells of a table: the one of ";", " / ", "|" and a line break that
/// stands in most of `cells`; empty where none does.
QString guessSeparator(const QStringList& cells);

/// The answers in a cell, each once, without blanks around them; a cell is one answer where `separator` is
/// empty.
QStringList answersIn(const QString& cell, const QString& separator);
