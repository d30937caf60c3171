#pragma once

#include <QByteArray>
#include <QStringView>
#include <QtGlobal>

/// The program's number conversions and checked arithmetic. Each raises the run-time's error instead of
/// wrapping round or yielding infinity.

/// `value` as a 16-bit integer, halves rounded to the even neighbour. Raises overflow.
qint16 toInteger(double value);

/// `value` as a single. Raises overflow.
float toSingle(double value);

/// Raises division by zero, and overflow where the quotient has no value.
double divide(double dividend, double divisor);

/// The whole part of the quotient, cut towards zero. Raises division by zero.
int integerDivide(int dividend, int divisor);

/// The remainder of `integerDivide`. Raises division by zero.
int modulo(int dividend, int divisor);

/// The number at the start of `text`, blanks passed over; 0 where there is none.
double Val(QStringView text);

/// `value` in the shortest decimal form that reads back to it.
QByteArray shortest(float value);
QByteArray shortest(double value);
