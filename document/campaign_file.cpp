// campaign_file
