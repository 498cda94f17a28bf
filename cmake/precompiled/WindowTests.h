// What the tests of the window include again and again.
#pragma once

#include <QLineEdit>
#include <QMessageBox>
#include <QPointer>
#include <QTest>

#include "EngineTests.h"
#include "Window.h"
