#include "lingdata/PhoneticCheck.h"

std::optional<CodeFault> findCodeFault(QStringView text)
{
    constexpr qsizetype EscapeLength = 3;

    while (!text.isEmpty()) {
        const PhoneticUnit unit = decodePhonetic(text);
        if (unit.kind == PhoneticUnit::Kind::Illegal) {
            const qsizetype next = text.indexOf(QLatin1Char('\\'), 1);
            const QStringView code = text.left(next < 0 ? text.size() : next).left(EscapeLength);
            return CodeFault{code.toString(), code.size() < EscapeLength};
        }
        text = text.mid(unit.consumed);
    }
    return std::nullopt;
}

QString faultText(const CodeFault& fault)
{
    return fault.code + (fault.cutShort ? QStringLiteral(" is cut short") : QStringLiteral(" is in no code"));
}
