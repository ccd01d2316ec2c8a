// Precompiled for the libraries with windows: what most of their files include.
#pragma once

#include "pch_rules.h"

#include <QAction>
#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QIcon>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QMouseEvent>
#include <QPainter>
#include <QPixmap>
#include <QPushButton>
#include <QTimer>
#include <QWidget>
