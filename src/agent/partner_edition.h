// The partner edition: images\Config.txt of InstallFolder marks it and names the brand.
#pragma once

#include "agent/state_pictures.h"
#include "platform/files.h"
#include "shared/agent_state.h"

namespace agent {

// images\Config.txt: its existence alone changes pictures and texts.
bool HasPartnerMarker(platform::Files& files, const shared::AgentState& state);

// Applies the marker's three lines to the state: product name, a second name that is passed over,
// icon file. A missing line leaves its field. Does nothing without the marker.
void ApplyPartnerEdition(platform::Files& files, shared::AgentState& state);

// The picture of a form: the brand's file when it is there, else the product's own.
StatePicture FormPicture(platform::Files& files, const shared::AgentState& state);

// Gives a product whose name is blank the partner edition's own name.
void NameBlankProduct(shared::AgentState& state);

}  // namespace agent
