#pragma once

#include "platform/RunTimeError.h"

/// The error, its file named as on this machine.
RunTimeError onThisMachine(const RunTimeError& error);
