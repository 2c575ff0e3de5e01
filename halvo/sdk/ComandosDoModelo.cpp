#include "halvo/sdk/IModelo.h"

namespace halvo {

// Defined here, so that the interface's type information lives once, in this library, and the
// host's dynamic_cast recognises it in a plug-in.
ComandosDoModelo::~ComandosDoModelo() = default;

}  // namespace halvo
