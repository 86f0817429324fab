# Prints the UUID that belongs to NAME: the same for the same name, on every machine.
#   cmake -D NAME=... -P name_based_uuid.cmake
string(UUID uuid NAMESPACE ab0fc8b9-4db9-4a08-9bf4-b3c2ea65e2aa NAME "${NAME}" TYPE SHA1 UPPER)
execute_process(COMMAND ${CMAKE_COMMAND} -E echo ${uuid})
