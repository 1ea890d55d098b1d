#include "ui/tiltvane_data_view.h"
