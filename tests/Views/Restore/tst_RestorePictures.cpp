#include "TestRunner.h"
