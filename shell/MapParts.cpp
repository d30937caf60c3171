#include "shell/MapParts.h"

#include "shell/VarnModule.h"

TextParts textParts(const VarnModule& varn)
{
    return {varn, varn, varn, varn.Pictures};
}

BlankMapParts blankMapParts(VarnModule& varn)
{
    return {varn, varn, varn.SymbolFileName, varn};
}

LinguisticMapParts linguisticMapParts(VarnModule& varn)
{
    return {blankMapParts(varn), textParts(varn), varn, varn};
}

CountMapParts countMapParts(VarnModule& varn)
{
    return {blankMapParts(varn), textParts(varn), varn, varn, varn};
}
