#pragma once

// The nag library keeps the locks of promised nags through this interface; the shell implements it.
#include "Nag/INagIdLockStorage.h"
