#pragma once

#include <QWidget>

#include "viewer/Arguments.h"

namespace viewer {

/// The sample viewer's only window. Closing it ends the program.
class SampleWindow : public QWidget {
 public:
  explicit SampleWindow(const Arguments& arguments);
};

}  // namespace viewer
