#pragma once

#include <QString>
#include <QWidget>

#include <map>

/// Create a window with the sample of a state, by class name and number of the state.
extern const std::map<QString, QWidget* (*)()> SAMPLES;
