#include "inventory/VstFolders.h"
