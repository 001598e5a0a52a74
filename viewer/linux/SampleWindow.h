#pragma once

#include <QWidget>

#include "viewer/Arguments.h"

namespace viewer {

/// The sample viewer's one window; the program ends with it.
class SampleWindow : public QWidget {
 public:
  explicit SampleWindow(const Arguments& arguments);
};

}  // namespace viewer
