#pragma once

/// Both archives, with everything that is needed to hand them a document or a value of one's own.

#include <cereal/cereal.hpp>

#include "Utils/Public/Archive/JSONInputArchive.h"
#include "Utils/Public/Archive/JSONOutputArchive.h"
#include "Utils/Public/Archive/Persist.h"
