#pragma once

#include "tests/support/TestDrive.h"

inline const QByteArray RainItem = "3,\"\",\"Rain\",\"\"\r\n2\r\n\"ame\"\r\n\"uyu\"\r\n0\r\n1\r\n\"uyu\"\r\n";
inline const QByteArray RainSymbols = "\"\"\r\n2\r\n\"ame\",\"AME\"\r\n1\r\n0\r\n0\r\n1\r\n1\r\n1\r\n\"uyu\","
                                      "\"UYU\"\r\n49\r\n4\r\n0\r\n0\r\n1\r\n1\r\n";
inline const QByteArray SnowItem = "3,\"\",\"Snow\",\"\"\r\n1\r\n\"yuki\"\r\n1\r\n\"yuki\"\r\n0\r\n";

/// Path of a file in the folder of the items of a `TestSurvey`.
inline QString ling(const char* file)
{
    return QStringLiteral("C:\\Varn62E\\Varn\\VarnData\\Test\\Ling\\") + QLatin1String(file);
}

/// An item that has symbols, and one that has none.
inline void writeAtlasItems(const TestDrive& drive)
{
    drive.write(ling("rain.dbs"), RainItem);
    drive.write(ling("rain.han"), RainSymbols);
    drive.write(ling("snow.dbs"), SnowItem);
}
