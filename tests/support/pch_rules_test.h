// Precompiled for the tests of the rules.
#pragma once

#include "../../cmake/pch_rules.h"

#include <QTemporaryDir>

#include <gmock/gmock.h>
#include <gtest/gtest.h>
