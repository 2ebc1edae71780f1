#include "platform/linux/LinuxClock.h"
