// region_image
