#include "ui/basics/Wandansicht.h"
