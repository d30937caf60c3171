#pragma once

#include <QString>

#include <functional>

/// What `work` fails with, as a page tells it: what is wrong, where, and what can be done. Empty where it
/// does not fail.
QString faultOf(const std::function<void()>& work);
