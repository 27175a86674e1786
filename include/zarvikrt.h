#pragma once

// Every public header. tests/install checks that none is missing.
#include "Class.h"
#include "Exceptions.h"
