#pragma once

#include "analysis/forms/frmCalExec.h"
#include "analysis/forms/frmCalc.h"
#include "analysis/forms/frmRankData.h"
#include "analysis/forms/frmTotalHanko.h"
#include "atlas/forms/frmAtlas.h"
#include "lingdata/forms/frmData.h"
#include "lingdata/forms/frmDataInput.h"
#include "mapdata/forms/frmChizu.h"
#include "render/forms/frmMap.h"
#include "symbols/forms/frmSetHanko.h"

#include <functional>

/// The forms that the main form opens.
struct WorkingForms
{
    /// `mayChangeMap` asks the user where unsaved work is in the way of another map.
    WorkingForms(VarnModule& varn, Dialogs& dialogs, const std::function<bool()>& mayChangeMap)
        : map(varn, dialogs), chizu(
                                  varn, dialogs, [this] { return map.surfaces(); }, mayChangeMap),
          dataInput(varn, dialogs), data(varn, dialogs), setHanko(varn, dialogs), calc(varn, dialogs),
          calExec(varn, dialogs), rankData(varn, dialogs), totalHanko(varn, dialogs), atlas(varn, dialogs)
    {}

    frmMap map;
    frmChizu chizu;
    frmDataInput dataInput;
    frmData data;
    frmSetHanko setHanko;
    frmCalc calc;
    frmCalExec calExec;
    frmRankData rankData;
    frmTotalHanko totalHanko;
    frmAtlas atlas;
};
