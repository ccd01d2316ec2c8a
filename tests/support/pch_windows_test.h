// Precompiled for the tests of windows: what most of them include.
#pragma once

#include "../../cmake/pch_windows.h"
#include "Files.h"

#include <QtTest>
#include <QtWidgets>

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <deque>
#include <random>

#include "Pixels.h"
#include "Play.h"
#include "Shown.h"
