#pragma once

#include "lingdata/PhoneticCode.h"

#include <optional>

/// An escape that is in no code.
struct CodeFault
{
    /// The escape, its backslash included.
    QString code;
    /// Whether the escape ends before its letter and digit are there.
    bool cutShort = false;

    bool operator==(const CodeFault&) const = default;
};

/// The first escape of `text` that is in no code; nothing where all of them stand for letters.
std::optional<CodeFault> findCodeFault(QStringView text);

/// What is wrong, for the user: "\Q1 is in no code".
QString faultText(const CodeFault& fault);
