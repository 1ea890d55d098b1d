// Stands on the floor of geodesy and looks down: this must compile.
#include "drawing/surface.h"

int downward() { return 0; }
