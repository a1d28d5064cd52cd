#pragma once

#include "dimensions/Dimensious.h"

#include <memory>

/// A popup, with the warnings that its construction gives expected. Its slots are connected by name
/// before the groups exist: Qt warns that each has no match.
std::unique_ptr<Dimensious> createPopup();
