// Precompiled for the tests of windows.
#pragma once

#include "../../cmake/pch_windows.h"

#include <QTemporaryDir>
#include <QTest>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
