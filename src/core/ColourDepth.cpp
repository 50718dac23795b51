#include "core/ColourDepth.h"

namespace core {

bool ShouldOfferDeeperIcons(std::int32_t displayDepth, std::int32_t shellIconDepth) {
  return shellIconDepth < kHighColourDepth && displayDepth < kHighColourDepth;
}

}  // namespace core
