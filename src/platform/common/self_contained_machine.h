#pragma once

#include "platform/common/in_memory_key_value_store.h"
#include "sources/platform_interfaces.h"

namespace ferrow {

// A machine that answers the registry, power-source, command and system questions itself and
// keeps its preferences in memory: the shape of every machine that is not the real one.
class SelfContainedMachine : public MachinePlatform,
                             public RegistryPropertySource,
                             public PowerSourceList,
                             public CommandRunner,
                             public SystemInfo {
public:
    RegistryPropertySource &registry() final { return *this; }
    PowerSourceList &powerSources() final { return *this; }
    CommandRunner &commandRunner() final { return *this; }
    KeyValueStore &preferences() final { return m_preferences; }
    SystemInfo &systemInfo() final { return *this; }

protected:
    InMemoryKeyValueStore m_preferences;
};

} // namespace ferrow
