// What the window's files include again and again.
#pragma once

#include <QApplication>
#include <QDialog>
#include <QEvent>
#include <QFileDialog>
#include <QIcon>
#include <QImage>
#include <QLabel>
#include <QPainter>
#include <QPushButton>
#include <QTableView>
#include <QTimer>
#include <QWidget>

#include "Engine.h"
