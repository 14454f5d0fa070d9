#pragma once

#include "host/runtime/exported.h"
#include "objc/abi.h"

/// Gives `cls` another implementation of `selector` and stores the one that answered before in
/// `*original`. A method that the class only inherits is added to it, the original being the
/// inherited one. A nil class, or a selector that the class does not answer, changes nothing.
/// A class method is replaced on the metaclass.
SONAVUE_EXPORTED void MSHookMessageEx(objc::Class cls, objc::Sel selector, objc::Imp replacement,
                                      objc::Imp* original);
