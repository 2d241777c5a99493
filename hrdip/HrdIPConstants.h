#pragma once

#include <string>

// Names shared by the NoC traffic model and its files.
namespace HrdIPToolCntr {

inline const std::string INVALID_DESIGN_NAME;
inline const std::string INVALID_DEVICE_NAME;
// The phase group of a path that no phase group names, and the phase whose
// figures are a path's plain figures.
inline const std::string DEFAULT_GROUP = "Group_Default";
inline const std::string DEFAULT_PHASE = "Phase_Default";

// Names of the memory parameters of a high-bandwidth memory controller.
namespace HbmMemParams {
inline const std::string STACK_NUMBER = "StackNumber";
inline const std::string CHANNEL_NUMBER = "ChannelNumber";
inline const std::string FREQUENCY = "Frequency";
}  // namespace HbmMemParams

}  // namespace HrdIPToolCntr
