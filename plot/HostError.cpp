#include "plot/HostError.h"

#include "platform/DriveC.h"

RunTimeError onThisMachine(const RunTimeError& error)
{
    FilePlace place = error.place();
    if (const auto hostPath = DriveC().knownHostPath(place.path)) {
        place.path = *hostPath;
    }
    return error.at(place);
}
