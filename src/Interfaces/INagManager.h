#pragma once

// The nag manager's interface belongs to the nag library; this name stays for the components'
// list.
#include "Nag/IManager.h"
