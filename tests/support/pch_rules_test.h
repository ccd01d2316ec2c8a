// Precompiled for the tests of the rules.
#pragma once

#include "../../cmake/pch_rules.h"
#include "Files.h"

#include <QtCore>
#include <QtGui>

#include <gmock/gmock.h>

#include <array>
#include <cmath>
#include <csignal>
#include <deque>
#include <random>
#include <set>
#include <sys/stat.h>

#include "OrdinaryUser.h"
