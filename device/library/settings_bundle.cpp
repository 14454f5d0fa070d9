// The settings application loads a bundle's executable before it looks for the class of the first
// page. That class is made by the library, so all that this has to do is to depend on it.
