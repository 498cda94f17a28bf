// What the tests of the engine include again and again.
#pragma once

#include <QCoreApplication>
#include <QTemporaryDir>

#include "Engine.h"
#include "StandardTests.h"
