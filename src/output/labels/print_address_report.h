#pragma once

#include "core/context.h"
#include "output/labels/address_report.h"

namespace output {

/// Previews the address of those of one name, to be printed.
bool PrintAddressReport(core::Context& context, AddressLayout layout, const QString& name);
/// The addresses of a list of ids with "," between.
bool PrintAddressReportOf(core::Context& context, const QString& ids);

} // namespace output
