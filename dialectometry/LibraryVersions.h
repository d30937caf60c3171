#pragma once

#include <QString>

// The versions of the libraries that only this room knows.

QString geosVersion();
QString eigenVersion();
