#include "platform/macos/iokit_smc_client.h"

#include <IOKit/IOKitLib.h>

namespace ferrow {

std::uint32_t IOKitSMCUserClient::open()
{
    io_iterator_t iterator = 0;
    // The matching dictionary's one reference is consumed by IOServiceGetMatchingServices.
    if (IOServiceGetMatchingServices(kIOMainPortDefault, IOServiceMatching("AppleSMC"), &iterator) != KERN_SUCCESS)
        return 0;
    io_connect_t connection = 0;
    if (const io_object_t service = IOIteratorNext(iterator)) {
        IOServiceOpen(service, mach_task_self(), 0, &connection);
        IOObjectRelease(service);
    }
    IOObjectRelease(iterator);
    return connection;
}

IOKitStatus IOKitSMCUserClient::callStructMethod(std::uint32_t connection, std::uint32_t selector, const SMCKeyData &input, SMCKeyData &output)
{
    size_t outputSize = sizeof output;
    return IOConnectCallStructMethod(connection, selector, &input, sizeof input, &output, &outputSize);
}

void IOKitSMCUserClient::close(std::uint32_t connection)
{
    IOServiceClose(connection);
}

} // namespace ferrow
