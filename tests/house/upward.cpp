// Stands on the floor of geodesy and looks up: this must not compile.
#include "maps/canvas.h"

int upward() { return 0; }
