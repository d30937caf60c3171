#include "lingdata/WordCell.h"

namespace {

const QString EmptyWordForm = QStringLiteral("\"\"");

} // namespace

WordCell typedCell(const QString& text)
{
    const QString word = text.trimmed();
    if (word.isEmpty()) {
        return std::nullopt;
    }
    return word == EmptyWordForm ? QString() : text;
}

QString cellText(const WordCell& cell)
{
    return cell && cell->isEmpty() ? EmptyWordForm : cell.value_or(QString());
}
