// What the tests of a room of the standard library alone include again and again.
#pragma once

#include <gtest/gtest.h>

#include <map>
#include <random>
#include <set>

#include "Standard.h"
