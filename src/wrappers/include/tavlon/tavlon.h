#pragma once

/// @file
/// The one include of a host: the framework subset, the interface records, the value radar and the wrappers.
#include <tavlon/export.h>
#include <tavlon/framework.h>
#include <tavlon/proxies.h>
#include <tavlon/records.h>
#include <tavlon/value_radar.h>
