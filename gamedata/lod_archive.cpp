// lod_archive
