// campaign_data
