#include "AbstractGui/IVqUIcontrol.h"

IVqUIcontrol::~IVqUIcontrol() = default;
