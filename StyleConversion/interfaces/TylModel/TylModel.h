// The whole symbol model.
#pragma once

#include "TylModel/GraphicElement.h"
#include "TylModel/OwnerCollection.h"
#include "TylModel/Parameter.h"
#include "TylModel/RootObject.h"
#include "TylModel/SymbolDefinition.h"
#include "TylModel/Usage.h"
