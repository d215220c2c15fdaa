// image_cache
