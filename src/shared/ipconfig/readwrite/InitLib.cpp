#include "InitLib.h"

#include "HPAParamMgr.h"

extern "C" void init_lib()
{
  HPAParamMgr::getParamMgr();
}
