# The one place that chooses between the platforms: for each room, the files that answer its
# questions there. Folders are relative to the room.

if(APPLE)
  set(OTHER_PLATFORMS_FILES "_(linux|gnustep)[^/]*$")  # by their names, among those of a folder
  set(BASE_PLATFORM_SOURCES Conversions.mm Sleeper_mac.mm UnicodeRules_mac.mm Url_mac.mm)
  set(PROCESS_PLATFORM_SOURCES ProcessTable_mac.cpp ProgramStarter_mac.mm)
  set(NET_PLATFORM_SOURCES HostResolver_mac.cpp LinkDetector_mac.mm)
  set(DISCOVERY_PLATFORM_SOURCES
    DoneSignal_mac.cpp ListConversions.mm ListingTool_mac.mm OriginAttribute_mac.cpp
    PropertyList_mac.mm)
  set(CONTROLLER_PLATFORM_SOURCES OperationQueues_mac.mm)
  set(APP_PLATFORM_SOURCES PrepareToolkit_mac.cpp)
  set(VIEWER_PLATFORM_SOURCES Toolkit_mac.mm)
else()
  set(OTHER_PLATFORMS_FILES "_mac[^/]*$")
  set(BASE_PLATFORM_SOURCES
    Sleeper_linux.cpp Spawn_linux.cpp UnicodeRules_linux.cpp Url_linux.cpp)
  set(PROCESS_PLATFORM_SOURCES ProcessTable_linux.cpp ProgramStarter_linux.cpp)
  set(NET_PLATFORM_SOURCES
    HostResolver_linux.cpp LinkDetector_linux.cpp links/Authority.cpp links/HostName.cpp
    links/Link.cpp links/Tail.cpp links/Traits.cpp)
  set(DISCOVERY_PLATFORM_SOURCES
    BinaryObjects_linux.cpp DoneSignal_linux.cpp ListingTool_linux.cpp OriginAttribute_linux.cpp
    PropertyList_linux.cpp PropertyListBinary_linux.cpp PropertyListXml_linux.cpp
    XmlEncoding_linux.cpp XmlLeaves_linux.cpp XmlMarkup_linux.cpp XmlText_linux.cpp)
  set(CONTROLLER_PLATFORM_SOURCES OperationQueues_gnustep.mm)
  set(APP_PLATFORM_SOURCES PrepareToolkit_gnustep.mm)
  set(VIEWER_PLATFORM_SOURCES Toolkit_gnustep.cpp)
endif()
