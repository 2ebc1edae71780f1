#include "scan/SearchLists.h"
