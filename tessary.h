// Everything an application of Tessary may use.
//
// An application is its screen classes (derived from CPtrnDisp), the registry GetPtrnWnd and the hooks
// UserInit, UserExit and UserTimr, linked with libtessary_main and libtessary.
//
// The names of the panel's own language (records, Get_ and Set_, Ptrn...) are global. Whatever else the
// framework declares here is in namespace tessary: named parameters of items, states, actions, keys, texts.
#pragma once

#include "base/Constants.h"
#include "base/EucText.h"
#include "base/StateWord.h"
#include "base/Types.h"
#include "comndata/ClockCells.h"
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
#include "log/Clock.h"
#include "log/Logfile.h"
#include "log/LogText.h"
#include "pattern/ItemParm.h"
#include "pattern/PtrnData.h"
#include "pattern/PtrnFile.h"
#include "pattern/TitleBar.h"
#include "shell/Startup.h"
#include "window/FieldText.h"
#include "window/KeyValue.h"
#include "window/PtrnDisp.h"
#include "window/Registry.h"
#include "window/Request.h"

// Windows, drawables and events are the toolkit's own objects; who gets them may use them.
#include <gtk/gtk.h>
