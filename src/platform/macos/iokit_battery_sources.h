#pragma once

#include "sources/platform_interfaces.h"

namespace ferrow {

// The I/O Registry's property dictionaries (the battery service's among them).
class IOKitRegistry final : public RegistryPropertySource {
public:
    std::optional<PropertyDictionary> registryProperties(const QString &className) override;
};

// The power-source service: the list of source descriptions, and the adapter's details.
class IOKitPowerSources final : public PowerSourceList {
public:
    std::optional<PropertyList> powerSourceDescriptions() override;
    bool hasExternalPowerAdapterDetails() const;
};

} // namespace ferrow
