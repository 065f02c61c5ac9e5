#include "platform/macos/iokit_battery_sources.h"

#include "platform/macos/cf_property_value.h"
#include "platform/macos/cf_ref.h"

#include <IOKit/IOKitLib.h>
#include <IOKit/ps/IOPowerSources.h>

namespace ferrow {

std::optional<PropertyDictionary> IOKitRegistry::registryProperties(const QString &className)
{
    const QByteArray name = className.toUtf8();
    const CFMutableDictionaryRef matching = IOServiceMatching(name.constData());
    if (!matching)
        return std::nullopt;
    io_iterator_t iterator = 0;
    if (IOServiceGetMatchingServices(kIOMainPortDefault, matching, &iterator) != KERN_SUCCESS) // consumes matching
        return std::nullopt;

    std::optional<PropertyDictionary> result;
    if (const io_object_t service = IOIteratorNext(iterator)) {
        CFMutableDictionaryRef properties = nullptr;
        if (IORegistryEntryCreateCFProperties(service, &properties, kCFAllocatorDefault, 0) == KERN_SUCCESS && properties) {
            const auto owned = CFRef<CFMutableDictionaryRef>::adopt(properties);
            result = propertyDictionaryFromCF(owned.get());
        }
        IOObjectRelease(service);
    }
    IOObjectRelease(iterator);
    return result;
}

std::optional<PropertyList> IOKitPowerSources::powerSourceDescriptions()
{
    const auto info = CFRef<CFTypeRef>::adopt(IOPSCopyPowerSourcesInfo());
    if (!info)
        return std::nullopt;
    const auto list = CFRef<CFArrayRef>::adopt(IOPSCopyPowerSourcesList(info.get()));
    if (!list || CFGetTypeID(list.get()) != CFArrayGetTypeID())
        return std::nullopt;
    PropertyList descriptions;
    for (CFIndex i = 0; i < CFArrayGetCount(list.get()); ++i) {
        // A Get result: owned by the snapshot, which outlives this loop.
        const CFDictionaryRef description = IOPSGetPowerSourceDescription(info.get(), CFArrayGetValueAtIndex(list.get(), i));
        descriptions.push_back(description ? propertyValueFromCF(description) : PropertyValue(UnsupportedProperty{}));
    }
    return descriptions;
}

bool IOKitPowerSources::hasExternalPowerAdapterDetails() const
{
    const auto details = CFRef<CFDictionaryRef>::adopt(IOPSCopyExternalPowerAdapterDetails());
    return details && CFDictionaryGetCount(details.get()) > 0;
}

} // namespace ferrow
