// The settings application loads a bundle's executable before it looks up the class of the first
// page. The library makes that class, so this executable only has to depend on the library.
