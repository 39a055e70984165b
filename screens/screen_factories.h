// The screens by the names of their interface files, as the delegate asks for them.
#pragma once

#include "Ks_lite_delegate.h"

screen_factories all_screens();
