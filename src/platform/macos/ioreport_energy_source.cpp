#include "platform/macos/ioreport_energy_source.h"

#include "platform/macos/cf_property_value.h"

// The IOReport library ships with the system but has no public header. These are its functions
// as the system exports them; every Create/Copy result is owned by the caller, Get results are not.
extern "C" {
typedef const struct __IOReportSubscriptionCF *IOReportSubscriptionRef;
CFDictionaryRef IOReportCopyChannelsInGroup(CFStringRef group, CFStringRef subgroup, uint64_t a, uint64_t b, uint64_t c);
IOReportSubscriptionRef IOReportCreateSubscription(void *allocator, CFMutableDictionaryRef desiredChannels,
                                                   CFMutableDictionaryRef *subscribedChannels, uint64_t channelID, CFTypeRef options);
CFDictionaryRef IOReportCreateSamples(IOReportSubscriptionRef subscription, CFMutableDictionaryRef subscribedChannels, CFTypeRef options);
CFStringRef IOReportChannelGetGroup(CFDictionaryRef channel);
CFStringRef IOReportChannelGetChannelName(CFDictionaryRef channel);
CFStringRef IOReportChannelGetUnitLabel(CFDictionaryRef channel);
// The second parameter receives an error code where it is not null.
int64_t IOReportSimpleGetIntegerValue(CFDictionaryRef channel, int32_t *error);
}

namespace ferrow {
namespace {

std::optional<QString> optionalString(CFStringRef string)
{
    return string ? std::optional(stringFromCF(string)) : std::nullopt;
}

} // namespace

bool IOReportEnergySource::subscribe()
{
    const auto group = CFRef<CFStringRef>::adopt(CFStringCreateWithCString(kCFAllocatorDefault, "Energy Model", kCFStringEncodingUTF8));
    const auto channels = CFRef<CFDictionaryRef>::adopt(IOReportCopyChannelsInGroup(group.get(), nullptr, 0, 0, 0));
    if (!channels)
        return false;
    auto copy = CFRef<CFMutableDictionaryRef>::adopt(CFDictionaryCreateMutableCopy(kCFAllocatorDefault, 0, channels.get()));
    if (!copy || CFDictionaryGetCount(copy.get()) == 0 || !CFDictionaryContainsKey(copy.get(), CFSTR("IOReportChannels")))
        return false;
    CFMutableDictionaryRef subscribed = nullptr;
    m_subscription = CFRef<CFTypeRef>::adopt(IOReportCreateSubscription(nullptr, copy.get(), &subscribed, 0, nullptr));
    if (subscribed)
        CFRelease(subscribed); // handed back to us, and not needed
    m_channels = std::move(copy);
    return static_cast<bool>(m_subscription);
}

std::optional<std::vector<EnergyChannelSample>> IOReportEnergySource::sample()
{
    const auto samples = CFRef<CFDictionaryRef>::adopt(
        IOReportCreateSamples(static_cast<IOReportSubscriptionRef>(m_subscription.get()), m_channels.get(), nullptr));
    if (!samples || CFGetTypeID(samples.get()) != CFDictionaryGetTypeID())
        return std::nullopt;
    const CFTypeRef entries = CFDictionaryGetValue(samples.get(), CFSTR("IOReportChannels"));
    if (!entries || CFGetTypeID(entries) != CFArrayGetTypeID())
        return std::nullopt;

    const auto list = static_cast<CFArrayRef>(entries);
    std::vector<EnergyChannelSample> channels;
    channels.reserve(static_cast<std::size_t>(CFArrayGetCount(list)));
    for (CFIndex i = 0; i < CFArrayGetCount(list); ++i) {
        const auto channel = static_cast<CFDictionaryRef>(CFArrayGetValueAtIndex(list, i));
        if (!channel || CFGetTypeID(channel) != CFDictionaryGetTypeID())
            continue;
        channels.push_back({optionalString(IOReportChannelGetGroup(channel)), optionalString(IOReportChannelGetChannelName(channel)),
                            optionalString(IOReportChannelGetUnitLabel(channel)), IOReportSimpleGetIntegerValue(channel, nullptr)});
    }
    return channels;
}

} // namespace ferrow
