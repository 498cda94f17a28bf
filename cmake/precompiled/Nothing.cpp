// An object library needs a source.
