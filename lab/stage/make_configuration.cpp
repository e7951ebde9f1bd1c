// Prints the Configuration.ini of an installation.
#include <cstdio>

#include "lab/stage/configuration_text.h"

int main() {
  std::fputs(lab::ConfigurationText().c_str(), stdout);
  return 0;
}
