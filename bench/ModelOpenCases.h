#pragma once

#include <QString>
#include <memory>

class PDEBundle;

// The two openings of a PPD that the model benchmarks compare: the floor
// libcups itself needs, and the option model.
namespace ModelOpenCases {
// ppdOpenFile, ppdMarkDefaults, ppdClose; false if the PPD cannot be read.
bool libcupsFloor(const char* path);
// The host opens the PPD, the model is made and asked for the feature of
// every PPD option: the number of features, or -1 with the error.
int modelOpen(const std::shared_ptr<PDEBundle>& bundle, const QString& path, QString* error);
}
