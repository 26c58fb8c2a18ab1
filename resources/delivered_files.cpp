// Holds the delivered file set as Qt resources (see CMakeLists.txt).
