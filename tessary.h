// Everything an application of Tessary may use.
//
// An application is its screen classes (derived from CPtrnDisp), the registry GetPtrnWnd and the hooks
// UserInit, UserExit and UserTimr, linked with libtessary_main and libtessary.
#pragma once

#include "base/Constants.h"
#include "base/Types.h"
#include "comndata/ComnData.h"
#include "comndata/ItemState.h"
#include "comndata/LimtData.h"
#include "comndata/MesgData.h"
#include "comndata/PtrnCode.h"
#include "config/FileCntl.h"
#include "config/Profile.h"
#include "config/Settings.h"
#include "dialogs/MessageBox.h"
#include "dialogs/PtrnMente.h"
#include "draw/DrawCntl.h"
#include "draw/HitTest.h"
#include "draw/Images.h"
#include "draw/Resource.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"
#include "pattern/PtrnFile.h"
#include "pattern/TitleBar.h"
#include "shell/Clock.h"
#include "shell/Logfile.h"
#include "shell/Request.h"
#include "shell/Startup.h"
#include "window/FieldText.h"
#include "window/KeyText.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
