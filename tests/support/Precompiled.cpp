// Nothing of its own: the precompiled headers of the tests are made with this source.
